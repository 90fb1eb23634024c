# The model and the editor libraries are plain standard C++, and the model
# knows nothing of the editor above it. Guards keep it that way: the
# configure step refuses a source that includes a Qt header, and a model
# source that includes a header of an editor folder; assert_has_no_qt()
# refuses any Qt library among a target's link dependencies.
function(assert_sources_have_no_qt dir)
    file(GLOB_RECURSE sources "${dir}/*.h" "${dir}/*.cpp")
    foreach(source IN LISTS sources)
        file(STRINGS "${source}" qt_includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"](Q[A-Za-z]|qt)")
        if(qt_includes)
            message(FATAL_ERROR "core must not include Qt: ${source}: ${qt_includes}")
        endif()
    endforeach()
endfunction()

# Every folder of the editor (app, undo, seams, ...) is a prefix that no
# model source may include.
function(assert_model_sources_include_no_editor model_dir editor_dir)
    file(GLOB_RECURSE sources "${model_dir}/*.h" "${model_dir}/*.cpp")
    assert_files_include_no_editor("${editor_dir}" ${sources})
endfunction()

# The same for single files outside the model that need only the model, as
# the tool's commands that check, compare and rewrite templates.
function(assert_files_include_no_editor editor_dir)
    set(sources ${ARGN})
    file(GLOB editor_folders RELATIVE "${editor_dir}" "${editor_dir}/*")
    foreach(folder IN LISTS editor_folders)
        if(NOT IS_DIRECTORY "${editor_dir}/${folder}")
            continue()
        endif()
        foreach(source IN LISTS sources)
            file(STRINGS "${source}" editor_includes
                 REGEX "^[ \t]*#[ \t]*include[ \t]*\"${folder}/")
            if(editor_includes)
                message(FATAL_ERROR
                    "the model must not include the editor: ${source}: ${editor_includes}")
            endif()
        endforeach()
    endforeach()
endfunction()

function(assert_has_no_qt target)
    get_target_property(libs ${target} LINK_LIBRARIES)
    if(libs)
        foreach(lib IN LISTS libs)
            if(lib MATCHES "Qt")
                message(FATAL_ERROR "core must not link Qt, but ${target} links ${lib}")
            endif()
        endforeach()
    endif()
endfunction()

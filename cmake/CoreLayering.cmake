# The core library is plain standard C++. Two guards keep it that way:
# the configure step refuses any core source that includes a Qt header, and
# assert_core_has_no_qt() (called after the core target exists) refuses any
# Qt library among its link dependencies.
function(assert_core_sources_have_no_qt core_dir)
    file(GLOB_RECURSE sources "${core_dir}/*.h" "${core_dir}/*.cpp")
    foreach(source IN LISTS sources)
        file(STRINGS "${source}" qt_includes REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"](Q[A-Za-z]|qt)")
        if(qt_includes)
            message(FATAL_ERROR "core must not include Qt: ${source}: ${qt_includes}")
        endif()
    endforeach()
endfunction()

function(assert_core_has_no_qt target)
    get_target_property(libs ${target} LINK_LIBRARIES)
    if(libs)
        foreach(lib IN LISTS libs)
            if(lib MATCHES "Qt")
                message(FATAL_ERROR "core must not link Qt, but ${target} links ${lib}")
            endif()
        endforeach()
    endif()
endfunction()

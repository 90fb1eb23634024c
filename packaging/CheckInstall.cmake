# Run as a test: install the build into PREFIX and check that the programs,
# the desktop entry, an icon and the sample data arrive where a desktop looks
# for them.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE complaints)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The install failed:\n${complaints}")
endif()

set(expected
    bin/loomwright
    bin/loomwright-tool
    share/applications/loomwright.desktop
    share/icons/hicolor/48x48/apps/loomwright.png
    share/loomwright/data/scg)
set(missing "")
foreach(path IN LISTS expected)
    if(NOT EXISTS ${PREFIX}/${path})
        list(APPEND missing ${path})
    endif()
endforeach()
if(missing)
    message(FATAL_ERROR "Not installed: ${missing}")
endif()

find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
if(DESKTOP_FILE_VALIDATE)
    execute_process(COMMAND ${DESKTOP_FILE_VALIDATE} ${PREFIX}/share/applications/loomwright.desktop
        RESULT_VARIABLE result OUTPUT_VARIABLE complaints ERROR_VARIABLE complaints)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "The desktop entry is not valid:\n${complaints}")
    endif()
endif()

# Run as a test: fails when a model or editor source includes Qt, when a
# model source or a model-only command of the tool includes the editor, or when a program built from them alone
# depends on a Qt library at run time.
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/CoreLayering.cmake)
assert_sources_have_no_qt(${MODEL_DIR})
assert_sources_have_no_qt(${EDITOR_DIR})
assert_model_sources_include_no_editor(${MODEL_DIR} ${EDITOR_DIR})
string(REPLACE "," ";" tool_model_only "${TOOL_MODEL_ONLY}")
assert_files_include_no_editor(${EDITOR_DIR} ${tool_model_only})

string(REPLACE "," ";" programs "${CORE_ONLY_PROGRAMS}")
find_program(LDD ldd)
if(LDD)
    foreach(program IN LISTS programs)
        execute_process(COMMAND ${LDD} ${program} OUTPUT_VARIABLE libraries RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "ldd failed on ${program}")
        endif()
        if(libraries MATCHES "libQt")
            message(FATAL_ERROR "${program} depends on Qt:\n${libraries}")
        endif()
    endforeach()
endif()
message(STATUS "the model and the editor have no Qt dependency; the model includes no editor")

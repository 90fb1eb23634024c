# Run as a test: fails when a core source includes Qt, or when a program built
# from core alone depends on a Qt library at run time.
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/CoreLayering.cmake)
assert_core_sources_have_no_qt(${CORE_DIR})

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
message(STATUS "core has no Qt dependency")

# Run as a test: every C++ source of the project is formatted as .clang-format
# says. Skipped (exit 77) where clang-format is not installed.
find_program(CLANG_FORMAT NAMES clang-format clang-format-14 clang-format-15 clang-format-16)
if(NOT CLANG_FORMAT)
    message(STATUS "clang-format not found")
    cmake_language(EXIT 77)
endif()
file(GLOB_RECURSE sources
    ${SOURCE_DIR}/src/*.cpp ${SOURCE_DIR}/src/*.h
    ${SOURCE_DIR}/tests/*.cpp ${SOURCE_DIR}/tests/*.h
    ${SOURCE_DIR}/bench/*.cpp ${SOURCE_DIR}/bench/*.h
    ${SOURCE_DIR}/fuzz/*.cpp ${SOURCE_DIR}/fuzz/*.h)
execute_process(COMMAND ${CLANG_FORMAT} --dry-run -Werror ${sources}
    RESULT_VARIABLE result ERROR_VARIABLE complaints)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "Sources are not formatted (run clang-format -i):\n${complaints}")
endif()

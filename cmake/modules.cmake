# One CMake target per folder of src/, each seeing only the folders it names.
#
# A target's include directory is a view: a folder that holds one symbolic link, to the target's own
# folder. So `#include "values/money.h"` is found only by a target that links lodge_values, directly or
# through one that does, and a forbidden include does not compile.

add_library(lodge_options INTERFACE)
target_compile_options(lodge_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Werror
  # g++ 12 warns of overlapping copies in std::string's operator+ that do not overlap (its bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(LODGE_SANITIZE)
  target_compile_options(lodge_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(lodge_options INTERFACE -fsanitize=address,undefined)
endif()

# lodge_module(FOLDER SOURCES ... [USES FOLDER...] [LIBS TARGET...])
function(lodge_module folder)
  cmake_parse_arguments(MODULE "" "" "SOURCES;USES;LIBS" ${ARGN})
  string(REPLACE "/" "_" name "${folder}")
  set(target lodge_${name})
  set(view ${CMAKE_BINARY_DIR}/views/${name})
  get_filename_component(parent ${view}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../src/${folder} ${view}/${folder} SYMBOLIC)

  add_library(${target} STATIC ${MODULE_SOURCES})
  target_include_directories(${target} PUBLIC ${view})
  target_link_libraries(${target} PRIVATE lodge_options)
  foreach(used IN LISTS MODULE_USES)
    string(REPLACE "/" "_" used_name "${used}")
    target_link_libraries(${target} PUBLIC lodge_${used_name})
  endforeach()
  target_link_libraries(${target} PRIVATE ${MODULE_LIBS})
endfunction()

# lodge_test(NAME SOURCES ... USES FOLDER... [LIBS TARGET...]): one GoogleTest program, one ctest entry.
function(lodge_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;USES;LIBS" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  foreach(used IN LISTS TEST_USES)
    string(REPLACE "/" "_" used_name "${used}")
    target_link_libraries(${name} PRIVATE lodge_${used_name})
  endforeach()
  target_link_libraries(${name} PRIVATE lodge_options ${TEST_LIBS} GTest::gtest_main GTest::gmock)
  target_compile_definitions(${name} PRIVATE
    LODGE_TEST_DATA="${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../tests/data"
    LODGE_SOURCE_DIR="${CMAKE_CURRENT_FUNCTION_LIST_DIR}/..")
  add_test(NAME ${name} COMMAND ${name})
endfunction()

# The build settings of every target: the language, the warnings, the sanitizers, the compiler cache.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
add_compile_options(-pthread)  # for all targets, or they could not share precompiled headers

find_program(CCACHE ccache)
if(CCACHE)
  # CCACHE_DEPEND: takes the headers from the compiler's own list, so that no file is preprocessed a second time.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  # The cache sees through precompiled headers only with these; each compiler has its own.
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-fpch-preprocess)
  else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()
if(VANTORIUM_SANITIZE)
  add_compile_options(-fsanitize=${VANTORIUM_SANITIZE} -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${VANTORIUM_SANITIZE})
  if(VANTORIUM_SANITIZE MATCHES thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    add_compile_options(-Wno-tsan)  # Asio uses fences, which this sanitizer does not support
  endif()
endif()

function(vantorium_own_code target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
  # At -O3, g++ 12 warns of overflows in its own std::string; these are false alarms.
  target_compile_options(${target} PRIVATE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-stringop-overflow;-Wno-restrict;-Wno-array-bounds>)
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()

# vantorium_sources(RESULT [EXCEPT FOLDER]): all sources of this folder and the folders in it, but for one that is a
# library of its own.
function(vantorium_sources result)
  cmake_parse_arguments(PARSE_ARGV 1 SOURCES "" "EXCEPT" "")
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} *.cpp *.h *.ui *.qrc)
  if(SOURCES_EXCEPT)
    list(FILTER files EXCLUDE REGEX "^${SOURCES_EXCEPT}/")
  endif()
  set(${result} ${files} PARENT_SCOPE)
endfunction()

# vantorium_library(NAME [EXCEPT FOLDER]): the static library of one folder.
function(vantorium_library name)
  vantorium_sources(files ${ARGN})
  add_library(${name} STATIC ${files})
  vantorium_own_code(${name})
  target_precompile_headers(${name} PRIVATE <algorithm> <cstdint> <filesystem> <memory> <optional> <string> <string_view> <vector>)
endfunction()

# vantorium_stage(FOLDER FILES...): copies each changed file into a folder, and adds the copies to the list `staged`, on
# which a target must depend.
function(vantorium_stage folder)
  foreach(file ${ARGN})
    cmake_path(GET file FILENAME name)
    add_custom_command(OUTPUT ${folder}/${name}
      COMMAND ${CMAKE_COMMAND} -E copy ${file} ${folder}/${name}
      DEPENDS ${file} VERBATIM)
    list(APPEND staged ${folder}/${name})
  endforeach()
  set(staged ${staged} PARENT_SCOPE)
endfunction()

# The environment of each test that runs the program's code: suppresses sanitizer reports about known problems of other
# libraries.
set(VANTORIUM_TEST_ENVIRONMENT "")
if(VANTORIUM_SANITIZE)
  set(known ${PROJECT_SOURCE_DIR}/cmake/sanitizers)
  if(VANTORIUM_SANITIZE MATCHES thread)
    set(VANTORIUM_TEST_ENVIRONMENT TSAN_OPTIONS=suppressions=${known}/threads.txt)
  else()
    set(VANTORIUM_TEST_ENVIRONMENT LSAN_OPTIONS=suppressions=${known}/leaks.txt:print_suppressions=0)
  endif()
endif()

# The build settings of test code. It takes longer to compile than to run, so only benchmarks optimize what they share
# with tests.
function(vantorium_test_code target)
  vantorium_own_code(${target})
  target_compile_options(${target} PRIVATE $<$<NOT:$<CONFIG:Release>>:-O0>)
endfunction()

# vantorium_test_program(NAME LINK libraries... FILES files... [HEADERS target]): the test program of one folder, to be
# run by hand. It uses the precompiled headers of `target`, or of vantorium_fakes by default.
function(vantorium_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 TEST "" "HEADERS" "LINK;FILES")
  if(NOT TEST_HEADERS)
    set(TEST_HEADERS vantorium_fakes)
  endif()
  add_executable(${name} ${TEST_FILES})
  vantorium_test_code(${name})
  target_link_libraries(${name} PRIVATE ${TEST_LINK} vantorium_fakes GTest::gtest_main)
  target_precompile_headers(${name} REUSE_FROM ${TEST_HEADERS})
endfunction()

# vantorium_test(...): the same, and ctest runs each of its test suites.
function(vantorium_test name)
  vantorium_test_program(${name} ${ARGN})
  set(suites ${CMAKE_CURRENT_BINARY_DIR}/${name}-suites.cmake)
  file(GENERATE OUTPUT ${suites} CONTENT
"set(program \"$<TARGET_FILE:${name}>\")
set(name ${name})
set(environment \"${VANTORIUM_TEST_ENVIRONMENT}\")
include(\"${PROJECT_SOURCE_DIR}/cmake/ListSuites.cmake\")
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${suites})
endfunction()

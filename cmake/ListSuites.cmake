# Adds a test for each test suite of a GoogleTest program. ctest includes this before it runs tests, with `program`,
# `name` and `environment` set. One process for each test would spend more time on starting than on testing.
execute_process(COMMAND ${program} --gtest_list_tests OUTPUT_VARIABLE listing ERROR_QUIET
  RESULT_VARIABLE result TIMEOUT 60)
string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\.\n" suites "\n${listing}")
if(NOT result EQUAL 0 OR NOT suites)
  set(suites ${name})  # fails: no test of this name runs
endif()
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "[\n.]" "" suite "${suite}")
  add_test(${suite} ${program} --gtest_filter=${suite}.*)
  # A test that does not run is a failure.
  set_tests_properties(${suite} PROPERTIES TIMEOUT 600 LABELS ${name} ENVIRONMENT "${environment}"
    FAIL_REGULAR_EXPRESSION "\\[  SKIPPED \\]|\\[  PASSED  \\] 0 tests|YOU HAVE [0-9]+ DISABLED TEST")
endforeach()

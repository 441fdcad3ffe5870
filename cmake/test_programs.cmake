# zel_tests(FOLDER LIBRARY...)
# One GoogleTest program of tests/FOLDER. Each of its tests is known to CTest by its own name, but
# where a process takes long to start.
function(zel_tests folder)
  zel_glob(sources "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
  list(FILTER sources EXCLUDE REGEX "/(platform/win32|numbers/same_bits)/") # programs of their own
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "/platform/xdg/")
  endif()
  if(NOT sources)
    return()
  endif()
  set(target ${folder}_tests)
  add_executable(${target} ${sources})
  # What is tested is optimised, not the tests, but for those that compute much themselves.
  if(folder MATCHES "^(engine|files|numbers)$" OR folder STREQUAL "cli" AND NOT ZEL_SANITIZERS)
    target_compile_options(${target} PRIVATE -O1)
  else()
    target_compile_options(${target} PRIVATE -O0)
  endif()
  if(ZEL_SANITIZERS MATCHES "undefined") # in what is tested; the tests take twice as long to compile
    target_compile_options(${target} PRIVATE -fno-sanitize=undefined,float-cast-overflow)
  endif()
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # With less optimisation GCC 12 takes short strings for overrun ones.
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
  target_link_libraries(${target} PRIVATE zel_test_support ${ARGN} GTest::gmock_main)
  target_compile_definitions(${target} PRIVATE
    ZEL_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    ZEL_EXAMPLES_DIR="${PROJECT_SOURCE_DIR}/examples")
  # Most of the time goes into headers, so many sources are compiled at once.
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${ZEL_UNITY})
  if(folder STREQUAL "cli" AND TARGET zel-cli)
    target_compile_definitions(${target} PRIVATE ZEL_CLI_PATH="$<TARGET_FILE:zel-cli>")
    add_dependencies(${target} zel-cli)
  endif()
  if(WIN32)
    # One process for all of them: under Wine each takes half a second to start.
    add_test(NAME ${target} COMMAND ${target})
    set_tests_properties(${target} PROPERTIES TIMEOUT 3600 LABELS ${folder}
      ENVIRONMENT "LANG=es_ES.UTF-8;ZEL_MONKEY_EVENTS=10000")
    return()
  endif()
  if(ZEL_SANITIZERS)
    # Here too: under them a program takes longer to start than most tests. Left out is what repeats
    # one thing for long and shows nothing.
    string(JOIN ":" left_out "*TooLongToBeRead*" "LongWalks.OfAPick*" "Png.HasTheSameBytes*"
      "Races.DoNotReadMoreOfAGrowingFile*")
    add_test(NAME ${target} COMMAND ${target} --gtest_brief=1 --gtest_filter=-${left_out})
    set_tests_properties(${target} PROPERTIES TIMEOUT 3600 LABELS ${folder})
    return()
  endif()
  # The tests are listed when ctest starts, not by the build: a program that cannot start is a
  # failed test then, not a failed build.
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 600
    PROPERTIES TIMEOUT 1500 LABELS ${folder})
endfunction()

# zel_test_scripts()
# Each *_test.sh below tests/, called with the path of zel-cli and the source folder; a script that
# ends with 77 was skipped. Those of tests/cli and tests/docs need zel-cli; those of tests/house look
# at the sources only; those of tests/platform and tests/packaging belong to the builds that have the
# windows; those of tests/windows are the only ones of the builds for Windows, and run under Wine;
# some of them need the windows too.
function(zel_test_scripts)
  set(tests "${PROJECT_SOURCE_DIR}/tests")
  file(GLOB_RECURSE scripts CONFIGURE_DEPENDS RELATIVE "${tests}" "${tests}/*_test.sh")
  if(WIN32)
    list(FILTER scripts INCLUDE REGEX "^windows/")
  else()
    list(FILTER scripts EXCLUDE REGEX "^windows/")
  endif()
  if(NOT TARGET zel-cli)
    list(FILTER scripts EXCLUDE REGEX "^(cli|docs)/")
  endif()
  if(NOT ZEL_WITH_QT)
    list(FILTER scripts EXCLUDE
      REGEX "^(platform|packaging)/|^windows/(installer|package|tour)_")
  endif()
  foreach(script IN LISTS scripts)
    string(REGEX REPLACE "_test\\.sh$" "" name "${script}")
    get_filename_component(folder "${script}" DIRECTORY)
    add_test(NAME "${name}"
      COMMAND bash "${tests}/${script}"
        "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/zel-cli${CMAKE_EXECUTABLE_SUFFIX}" "${PROJECT_SOURCE_DIR}")
    set_tests_properties("${name}" PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 3600 LABELS "${folder}")
    if(name MATCHES "^windows/(installer|tour)$")
      # They copy Wine's home, which what runs beside them writes into.
      set_tests_properties("${name}" PROPERTIES RUN_SERIAL TRUE)
    endif()
  endforeach()
endfunction()

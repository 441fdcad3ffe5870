# The environment that ctest gives to every test of this folder.
set(qt_includes "")
if(ZEL_WITH_QT)
  foreach(module Core Gui Widgets PrintSupport)
    get_target_property(folders Qt6::${module} INTERFACE_INCLUDE_DIRECTORIES)
    list(APPEND qt_includes ${folders})
  endforeach()
  list(REMOVE_DUPLICATES qt_includes)
  list(JOIN qt_includes ":" qt_includes)
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/test_environment.cmake.in"
  "${CMAKE_CURRENT_BINARY_DIR}/test_environment.cmake" @ONLY)
set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES
  "${CMAKE_CURRENT_BINARY_DIR}/test_environment.cmake")

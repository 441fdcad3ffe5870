if(WIN32)
  enable_language(RC)
endif()

# zel_windows_program(TARGET DESCRIPTION): the resources of a Windows program: its icon, version and
# manifest. Elsewhere, and where there is no such program, nothing.
function(zel_windows_program target description)
  if(NOT WIN32 OR NOT TARGET ${target})
    return()
  endif()
  set(ZEL_PACKAGING "${PROJECT_SOURCE_DIR}/packaging")
  set(ZEL_FILE_NAME "${target}")
  set(ZEL_FILE_DESCRIPTION "${description}")
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  configure_file("${ZEL_PACKAGING}/windows/program.rc.in" "${resources}" @ONLY)
  set_source_files_properties("${resources}" PROPERTIES OBJECT_DEPENDS
    "${ZEL_PACKAGING}/windows/zel.ico;${ZEL_PACKAGING}/windows/program.manifest")
  target_sources(${target} PRIVATE "${resources}")
endfunction()

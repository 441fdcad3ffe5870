# zel_header_only(TARGET FOLDER HEADER)
# A library that is nothing but a folder of headers, for another platform: those of the machine that
# builds serve, and nothing else of its include folder may be seen.
function(zel_header_only target folder header)
  find_path(ZEL_${folder}_HEADERS "${folder}/${header}" REQUIRED NO_CMAKE_FIND_ROOT_PATH
    PATHS /usr/include /usr/local/include)
  set(links "${PROJECT_BINARY_DIR}/header_only")
  file(MAKE_DIRECTORY "${links}")
  file(CREATE_LINK "${ZEL_${folder}_HEADERS}/${folder}" "${links}/${folder}" SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} SYSTEM INTERFACE "${links}")
endfunction()

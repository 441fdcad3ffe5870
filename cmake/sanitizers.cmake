if(ZEL_SANITIZERS)
  add_compile_options(-fsanitize=${ZEL_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZEL_SANITIZERS})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The added checks confuse GCC's flow analysis; the other builds keep this warning.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  add_compile_options(
    -Wall
    -Wextra
    -Wpedantic
    -Wconversion
    -Wsign-conversion
    -Wshadow
    -Wcast-align
    -Wcast-qual
    -Wdouble-promotion
    -Wextra-semi
    -Wformat=2
    -Wimplicit-fallthrough
    -Wnon-virtual-dtor
    -Wold-style-cast
    -Woverloaded-virtual
    -Wundef
    -Wunused)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wduplicated-branches -Wduplicated-cond -Wlogical-op)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      # GCC 12 sees overlaps in the joining of strings that are none.
      add_compile_options(-Wno-restrict)
    endif()
  endif()
elseif(MSVC)
  add_compile_options(/W4 /permissive- /utf-8)
endif()

set(CMAKE_COMPILE_WARNING_AS_ERROR ${ZEL_WERROR})

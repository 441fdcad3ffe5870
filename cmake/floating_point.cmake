# A result is the same to the last bit on every machine: no fused multiply-add, no x87 registers,
# no algebra behind our back.
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  add_compile_options(-ffp-contract=off -fno-fast-math)
  # Nobody reads errno or the exception flags, and loops over doubles go faster without them.
  add_compile_options(-fno-math-errno -fno-trapping-math)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "86")
    add_compile_options(-msse2 -mfpmath=sse)
  endif()
elseif(MSVC)
  add_compile_options(/fp:precise)
endif()

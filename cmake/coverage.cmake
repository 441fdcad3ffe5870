# The counts of clang are those of conditions and statements as the sources have them; what the
# compiler adds for exceptions is not among them.
if(ZEL_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

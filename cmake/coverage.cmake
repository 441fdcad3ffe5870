# The counts of clang are those of conditions and statements as the sources have them; what the
# compiler adds for exceptions is not among them. They can be kept in the file itself, so that what a
# killed process has run counts too.
if(ZEL_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping
    "SHELL:-mllvm -runtime-counter-relocation")
  add_link_options(-fprofile-instr-generate)
endif()

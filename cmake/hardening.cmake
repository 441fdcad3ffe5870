# What makes a fault that nobody has found harder to use: canaries on the stack, checked copies,
# tables of addresses that are read-only from the start, programs at a random place, and on x86
# marked places for indirect jumps. tests/cli/hardening_test.sh and
# tests/windows/hardening_test.sh look at the programs. Sanitizers bring checks of their own.
include(CheckPIESupported)
check_pie_supported()

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" AND NOT ZEL_SANITIZERS)
  add_compile_options(-fstack-protector-strong)
  add_compile_options("$<$<CONFIG:Release>:-U_FORTIFY_SOURCE>" "$<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>")
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    add_compile_options(-fcf-protection)
  endif()
  if(WIN32)
    add_link_options(-fstack-protector-strong) # the library of the canaries is its own here
    add_link_options(-Wl,--dynamicbase -Wl,--high-entropy-va -Wl,--nxcompat)
  else()
    add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
  endif()
endif()

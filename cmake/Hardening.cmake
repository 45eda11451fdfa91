# What makes a mistake in memory the end at once, and no way in. It holds for all that is optimised: the other builds are for
# the debugger and the sanitizers, which see more. tests/packaging/hardened-test reads it in the programs.
include(CheckCXXCompilerFlag)

set(hardening -fstack-protector-strong)
if(NOT WIN32)
  # Windows steps on each page of a stack anyway, and its processors' guards are switched on by another linker alone.
  list(APPEND hardening
    -fstack-clash-protection # no frame skips the page that guards the stack
    -fcf-protection=full # jumps and returns go where they may, on processors that look after that
  )
endif()
foreach(flag IN LISTS hardening)
  string(MAKE_C_IDENTIFIER "ZY_HAS${flag}" has)
  check_cxx_compiler_flag(${flag} ${has})
  if(${has})
    add_compile_options($<$<AND:$<CONFIG:RelWithDebInfo>,$<COMPILE_LANGUAGE:C,CXX>>:${flag}>)
  endif()
endforeach()

# The C library's functions look after the size of what they write to, and the containers of C++ after their indices.
add_compile_options("$<$<AND:$<CONFIG:RelWithDebInfo>,$<COMPILE_LANGUAGE:C,CXX>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=3;-D_GLIBCXX_ASSERTIONS>")

if(WIN32)
  add_link_options($<$<CONFIG:RelWithDebInfo>:-fstack-protector-strong>) # the guard is a library of its own there
else()
  # Nothing can be written over the addresses of functions once the program runs.
  add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

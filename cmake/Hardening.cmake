# What makes a fault in a program that users run harder to abuse. Not part of vexa_options: the test
# programs' own code is not optimized, which fortified functions require; and not together with sanitizers, which see more.
add_library(vexa_hardening INTERFACE)
if(VEXA_SANITIZE)
  return()
endif()

include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-ftrivial-auto-var-init=zero VEXA_HAS_AUTO_VAR_INIT)
check_cxx_compiler_flag(-fcf-protection=full VEXA_HAS_CF_PROTECTION)

target_compile_options(vexa_hardening INTERFACE -fstack-protector-strong -fstack-clash-protection
  $<$<BOOL:${VEXA_HAS_AUTO_VAR_INIT}>:-ftrivial-auto-var-init=zero>
  $<$<BOOL:${VEXA_HAS_CF_PROTECTION}>:-fcf-protection=full>)
# Level 3 falls back to 2 in a compiler that has no more. A distribution's own value is replaced.
target_compile_options(vexa_hardening INTERFACE
  $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>)
# Fortified functions make the compiler believe that a short std::wstring that is moved overruns.
target_compile_options(vexa_hardening INTERFACE -Wno-attribute-warning)
target_link_options(vexa_hardening INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)

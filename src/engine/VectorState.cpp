#include "engine/VectorState.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vexa {

#if defined(__x86_64__)

namespace {

// A function of its own, so that nothing is held in these registers where it is called.
[[gnu::noinline, gnu::target("avx")]] void ZeroUpperHalves() {
  _mm256_zeroupper();
}

}  // namespace

void ForgetUpperHalves() {
  if (__builtin_cpu_supports("avx")) ZeroUpperHalves();
}

#else

void ForgetUpperHalves() {}

#endif

}  // namespace vexa

#pragma once

#include <cstddef>

namespace vexa::bench {

/// How often memory has been allocated since the program's start.
std::size_t Allocations();

}  // namespace vexa::bench

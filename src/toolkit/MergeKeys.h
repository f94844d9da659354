#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "toolkit/Key.h"

namespace vexa {

/// Two tables of keys as one, in reading order: row by row, from left to right.
template <std::size_t N, std::size_t M>
constexpr std::array<Key, N + M> MergeKeys(const Key (&first)[N], const Key (&second)[M]) {
  const auto isBefore = [](const Key& a, const Key& b) {
    return a.row != b.row ? a.row < b.row : a.column < b.column;
  };
  std::array<Key, N + M> keys{};
  std::ranges::copy(first, keys.begin());
  std::ranges::copy(second, keys.begin() + N);
  // Keys of one cell keep their order.
  for (auto key = keys.begin(); key != keys.end(); ++key) {
    std::rotate(std::upper_bound(keys.begin(), key, *key, isBefore), key, key + 1);
  }
  return keys;
}

}  // namespace vexa

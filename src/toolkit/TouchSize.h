#pragma once

namespace vexa {

/// The least height of what a finger is to hit, in logical pixels.
inline constexpr int kTouchHeight = 32;

}  // namespace vexa

#pragma once

#include <optional>
#include <span>

#include "display/SettingsStore.h"

namespace vexa {

/// A rectangle in logical pixels.
struct WindowPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool operator==(const WindowPlace&) const = default;
};

/// The window's smallest comfortable size: every screen is laid out for it.
inline constexpr int kLayoutWidth = 240;
inline constexpr int kLayoutHeight = 320;

/// Where the window opens for the first time on a display with the free area `screen`: centred, at
/// a comfortable size for a pen or a finger.
WindowPlace FirstPlace(const WindowPlace& screen);

/// Where the window opens that was left at `place`: moved and shrunk into the free area of the
/// screen that shows most of it, so that it can always be reached. A place without a size, or on no
/// screen, is FirstPlace on the first screen. `screens` is not empty.
WindowPlace FittedPlace(const WindowPlace& place, std::span<const WindowPlace> screens);

/// The stored place; values of any size are possible.
WindowPlace LoadWindowPlace(const SettingsStore& store);
void SaveWindowPlace(SettingsStore& store, const WindowPlace& place);

}  // namespace vexa

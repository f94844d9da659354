#pragma once

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

/// A window as it is at one moment.
struct WindowView {
  /// The corner of its frame and its own size.
  WindowPlace place;
  /// The whole of its frame.
  WindowPlace frame;
  /// It is on the screen: neither hidden nor minimised, and not covering the whole screen.
  bool isShown = false;
  bool isMaximized = false;
};

/// How the window opens the next time.
struct RememberedPlace {
  /// Where it is while it is not maximised.
  WindowPlace place;
  bool isMaximized = false;

  bool operator==(const RememberedPlace&) const = default;
};

/// What is remembered of a window that is seen as `view` now. Only the place of a normal window is:
/// one whose frame fills a screen is on its way into or out of being maximised, for window managers
/// tell a window's size and its state one after the other.
RememberedPlace PlaceAfter(const RememberedPlace& before, const WindowView& view,
                           std::span<const WindowPlace> screens);

/// What is stored; values of any size are possible.
RememberedPlace LoadWindowPlace(const SettingsStore& store);
void SaveWindowPlace(SettingsStore& store, const RememberedPlace& remembered);

}  // namespace vexa

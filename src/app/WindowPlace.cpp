#include "app/WindowPlace.h"

#include <algorithm>
#include <cstdint>

#include "display/SettingsLayout.h"

namespace vexa {
namespace {

using settings::IntSetting;

constexpr IntSetting kLeft{L"Window", L"Left", 0};
constexpr IntSetting kTop{L"Window", L"Top", 0};
constexpr IntSetting kWidth{L"Window", L"Width", 0};
constexpr IntSetting kHeight{L"Window", L"Height", 0};
constexpr IntSetting kMaximized{L"Window", L"Maximized", 0};

/// The opening size on a large display; smaller ones give it this share of their height.
constexpr int kComfortableHeight = 560;
constexpr int kComfortableShare = 85;
constexpr int kComfortableWidth = 340;
/// What the window's own frame takes of a small display's height; the rest is used.
constexpr int kFrameHeight = 28;

/// The length that two stretches share; stored values may be any integer, hence 64 bits.
std::int64_t Overlap(int start, int length, int otherStart, int otherLength) {
  const std::int64_t end = std::int64_t{start} + length;
  const std::int64_t otherEnd = std::int64_t{otherStart} + otherLength;
  return std::max<std::int64_t>(0, std::min(end, otherEnd) - std::max(start, otherStart));
}

std::int64_t SharedArea(const WindowPlace& a, const WindowPlace& b) {
  return Overlap(a.left, a.width, b.left, b.width) * Overlap(a.top, a.height, b.top, b.height);
}

}  // namespace

WindowPlace FirstPlace(const WindowPlace& screen) {
  const int least = std::min(kLayoutHeight, screen.height - kFrameHeight);
  const int height =
      std::min(kComfortableHeight, std::max(screen.height * kComfortableShare / 100, least));
  const int width = std::min({kComfortableWidth, screen.width, std::max(height, kLayoutWidth)});
  return {screen.left + (screen.width - width) / 2, screen.top + (screen.height - height) / 2,
          width, height};
}

WindowPlace FittedPlace(const WindowPlace& place, std::span<const WindowPlace> screens) {
  const auto best = std::ranges::max_element(
      screens, {}, [&](const WindowPlace& screen) { return SharedArea(place, screen); });
  if (place.width <= 0 || place.height <= 0 || SharedArea(place, *best) == 0) {
    return FirstPlace(screens.front());
  }
  const int width = std::clamp(place.width, std::min(kLayoutWidth, best->width), best->width);
  const int height = std::clamp(place.height, std::min(kLayoutHeight, best->height), best->height);
  return {std::clamp(place.left, best->left, best->left + best->width - width),
          std::clamp(place.top, best->top, best->top + best->height - height), width, height};
}

RememberedPlace PlaceAfter(const RememberedPlace& before, const WindowView& view,
                           std::span<const WindowPlace> screens) {
  if (!view.isShown) return before;
  if (view.isMaximized) return {before.place, true};
  const auto isFilled = [&](const WindowPlace& screen) {
    return SharedArea(view.frame, screen) == SharedArea(screen, screen);
  };
  if (std::ranges::any_of(screens, isFilled)) return before;
  return {view.place, false};
}

RememberedPlace LoadWindowPlace(const SettingsStore& store) {
  return {{settings::Read(store, kLeft), settings::Read(store, kTop), settings::Read(store, kWidth),
           settings::Read(store, kHeight)},
          settings::Read(store, kMaximized) != 0};
}

void SaveWindowPlace(SettingsStore& store, const RememberedPlace& remembered) {
  settings::Write(store, kLeft, remembered.place.left);
  settings::Write(store, kTop, remembered.place.top);
  settings::Write(store, kWidth, remembered.place.width);
  settings::Write(store, kHeight, remembered.place.height);
  settings::Write(store, kMaximized, remembered.isMaximized ? 1 : 0);
}

}  // namespace vexa

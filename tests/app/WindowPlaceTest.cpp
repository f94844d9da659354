#include "app/WindowPlace.h"

#include <gtest/gtest.h>

#include <limits>

#include "display/MemorySettingsStore.h"

namespace vexa {
namespace {

constexpr WindowPlace kLeftScreen{0, 0, 1920, 1040};
constexpr WindowPlace kRightScreen{1920, 100, 1280, 900};
const WindowPlace kScreens[] = {kLeftScreen, kRightScreen};

bool IsInside(const WindowPlace& place, const WindowPlace& screen) {
  return place.left >= screen.left && place.top >= screen.top &&
         place.left + place.width <= screen.left + screen.width &&
         place.top + place.height <= screen.top + screen.height;
}

TEST(WindowPlace, ASmallDisplayIsUsedWholeButForTheFrame) {
  EXPECT_EQ(FirstPlace({0, 0, 240, 320}), (WindowPlace{0, 14, 240, 292}));
  EXPECT_EQ(FirstPlace({0, 0, 320, 240}).height, 212);
}

TEST(WindowPlace, OpensCentredAndComfortable) {
  const WindowPlace place = FirstPlace(kLeftScreen);
  EXPECT_EQ(place.width, 340);
  EXPECT_EQ(place.height, 560);
  EXPECT_EQ(place.left, 790);
  EXPECT_EQ(place.top, 240);
}

TEST(WindowPlace, FitsASmallDisplay) {
  for (const WindowPlace& screen :
       {WindowPlace{0, 0, 240, 320}, WindowPlace{5, 7, 480, 272}, WindowPlace{0, 0, 100, 50}}) {
    EXPECT_TRUE(IsInside(FirstPlace(screen), screen)) << screen.width;
  }
}

TEST(WindowPlace, APlaceOnAScreenStays) {
  for (const WindowPlace& place :
       {WindowPlace{100, 100, 400, 600}, WindowPlace{2000, 150, 240, 320}, kLeftScreen}) {
    EXPECT_EQ(FittedPlace(place, kScreens), place);
  }
}

TEST(WindowPlace, APlaceOverTheEdgeMovesInside) {
  EXPECT_EQ(FittedPlace({-50, -20, 400, 600}, kScreens), (WindowPlace{0, 0, 400, 600}));
  EXPECT_EQ(FittedPlace({3100, 900, 400, 600}, kScreens), (WindowPlace{2800, 400, 400, 600}));
  EXPECT_EQ(FittedPlace({0, 0, 9000, 9000}, kScreens), kLeftScreen);
  EXPECT_EQ(FittedPlace({10, 10, 20, 20}, kScreens), (WindowPlace{10, 10, 240, 320}));
}

TEST(WindowPlace, HostilePlacesEndOnAScreen) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  const int values[] = {kLeast, -1, 0, 1, 500, kMost};
  for (const int left : values) {
    for (const int top : values) {
      for (const int width : values) {
        for (const int height : values) {
          const WindowPlace place = FittedPlace({left, top, width, height}, kScreens);
          EXPECT_TRUE(IsInside(place, kLeftScreen) || IsInside(place, kRightScreen));
          EXPECT_GE(place.width, kLayoutWidth);
          EXPECT_GE(place.height, kLayoutHeight);
        }
      }
    }
  }
}

constexpr RememberedPlace kBefore{{100, 80, 340, 480}, false};
constexpr RememberedPlace kMaximisedBefore{{100, 80, 340, 480}, true};

/// A shown window with a title of 20 pixels and no other frame.
WindowView Shown(const WindowPlace& place) {
  return {.place = place,
          .frame = {place.left, place.top, place.width, place.height + 20},
          .isShown = true};
}

TEST(WindowPlace, ANormalWindowsPlaceIsRemembered) {
  const WindowPlace place{300, 200, 400, 500};
  for (const RememberedPlace& before : {kBefore, kMaximisedBefore}) {
    EXPECT_EQ(PlaceAfter(before, Shown(place), kScreens), (RememberedPlace{place, false}));
  }
}

TEST(WindowPlace, WhatIsNotShownChangesNothing) {
  for (const bool isMaximized : {false, true}) {
    WindowView view = Shown({300, 200, 400, 500});
    view.isShown = false;
    view.isMaximized = isMaximized;
    EXPECT_EQ(PlaceAfter(kBefore, view, kScreens), kBefore);
    EXPECT_EQ(PlaceAfter(kMaximisedBefore, view, kScreens), kMaximisedBefore);
  }
}

TEST(WindowPlace, AMaximisedWindowKeepsTheNormalPlace) {
  WindowView view = Shown({0, 0, 1920, 1020});
  view.isMaximized = true;
  EXPECT_EQ(PlaceAfter(kBefore, view, kScreens), kMaximisedBefore);
  EXPECT_EQ(PlaceAfter(kMaximisedBefore, view, kScreens), kMaximisedBefore);
}

TEST(WindowPlace, ASizeThatIsToldBeforeItsStateChangesNothing) {
  // Maximised, said to be normal still or already.
  for (const WindowPlace& place : {WindowPlace{0, 0, 1920, 1020}, WindowPlace{1920, 100, 1280, 880},
                                   WindowPlace{-4, 0, 1930, 1060}}) {
    EXPECT_EQ(PlaceAfter(kBefore, Shown(place), kScreens), kBefore);
    EXPECT_EQ(PlaceAfter(kMaximisedBefore, Shown(place), kScreens), kMaximisedBefore);
  }
  // Large in one direction only is a size that a person gives.
  const WindowPlace high{50, 0, 400, 1020};
  EXPECT_EQ(PlaceAfter(kBefore, Shown(high), kScreens).place, high);
}

TEST(WindowPlace, IsStored) {
  MemorySettingsStore store;
  EXPECT_EQ(LoadWindowPlace(store), RememberedPlace());
  for (const bool isMaximized : {true, false}) {
    const RememberedPlace place{{-10, 20, 300, 400}, isMaximized};
    SaveWindowPlace(store, place);
    EXPECT_EQ(LoadWindowPlace(store), place);
  }
}

}  // namespace
}  // namespace vexa

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

TEST(WindowPlace, IsRemembered) {
  MemorySettingsStore store;
  EXPECT_EQ(LoadWindowPlace(store), WindowPlace());
  SaveWindowPlace(store, {-10, 20, 300, 400});
  EXPECT_EQ(LoadWindowPlace(store), (WindowPlace{-10, 20, 300, 400}));
}

}  // namespace
}  // namespace vexa

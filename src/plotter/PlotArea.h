#pragma once

/// Where a graph is drawn: fixed pixels of the graph view, the same on the screen and in a file,
/// whatever the window's size.
namespace vexa::plot_area {

inline constexpr int kLeft = 4;
inline constexpr int kRight = 234;
inline constexpr int kTop = 90;
inline constexpr int kBottom = 260;
inline constexpr int kWidth = kRight - kLeft;
inline constexpr int kHeight = kBottom - kTop;

/// The picture of a graph: the plot area with its frame and a margin.
inline constexpr int kPictureLeft = kLeft - 2;
inline constexpr int kPictureTop = kTop - 3;
inline constexpr int kPictureWidth = kWidth + 4;
inline constexpr int kPictureHeight = kHeight + 6;

}  // namespace vexa::plot_area

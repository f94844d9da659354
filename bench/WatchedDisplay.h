#pragma once

#include <X11/Xlib.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/Xdamage.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "ChildProcess.h"

namespace vexa::bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// All pixels of the display, row by row, as 0xRRGGBB.
using Picture = std::vector<std::uint32_t>;

/// What a display shows once a program has finished painting. Pixels that go on changing, such as a
/// blinking caret, are no part of it.
struct FinishedPicture {
  Picture pixels;
  Picture steady;  ///< 0xFFFFFF for a pixel that counts, else 0

  bool Matches(const Picture& picture) const;
};

/// A display in memory (Xvfb) of its own, which tells when something was drawn on it.
class WatchedDisplay {
 public:
  /// Starts the display and names it to the programs that are started afterwards.
  WatchedDisplay();
  ~WatchedDisplay();
  WatchedDisplay(const WatchedDisplay&) = delete;
  WatchedDisplay& operator=(const WatchedDisplay&) = delete;

  Picture Read() const;
  /// What is shown after `settling`, with the pixels that do not change during `watching`.
  FinishedPicture ReadFinished(Milliseconds settling, Milliseconds watching) const;
  /// Waits until `expected` is shown; returns when the drawing that completed it was reported.
  /// Throws when that takes too long.
  Clock::time_point WaitFor(const FinishedPicture& expected);
  /// The display without any window.
  const FinishedPicture& Empty() const { return empty; }
  /// The longest time that reading the display took since the object was created: what is drawn
  /// meanwhile can be seen that much before it is reported.
  Milliseconds LongestRead() const { return longestRead; }

  /// Writes a picture as a portable pixmap file.
  static void Save(const Picture& picture, const std::string& file);

 private:
  std::array<int, 2> numberPipe;  ///< the server writes its display's number into it
  ChildProcess server;
  Display* display = nullptr;
  Damage damage = 0;
  XShmSegmentInfo shared{};  ///< the server puts the pixels there, which is fastest
  XImage* image = nullptr;
  FinishedPicture empty;
  mutable Milliseconds longestRead{0};
};

}  // namespace vexa::bench

#pragma once

#include <thread>

namespace vexa {

/// Lets the font library read its configuration, which takes a large part of a start, while the
/// display is still being connected; the first text would have to wait for it otherwise.
class FontsAhead {
 public:
  FontsAhead();
  ~FontsAhead();
  FontsAhead(const FontsAhead&) = delete;
  FontsAhead& operator=(const FontsAhead&) = delete;

 private:
  std::thread reading;
};

}  // namespace vexa

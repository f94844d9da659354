#pragma once

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace vexa {

/// An open file of the system, closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int openFile = -1) : number(openFile) {}
  Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number, other.number);
    return *this;
  }
  ~Descriptor() {
    if (number >= 0) close(number);
  }

  /// True while there is an open file.
  explicit operator bool() const { return number >= 0; }
  int Number() const { return number; }

 private:
  int number;
};

/// Why the last call of the system failed.
inline std::error_code LastError() {
  return {errno, std::generic_category()};
}

}  // namespace vexa

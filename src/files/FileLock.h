#pragma once

#include <chrono>
#include <filesystem>
#include <system_error>

#include "files/Descriptor.h"

namespace vexa {

/// A lock between programs. It ends with its object and with the process, however that ends, so
/// that nothing is left to block the next one.
class FileLock {
 public:
  /// Takes the lock of the file `name`, which is created, and replaces what else stands there;
  /// another holder is waited for as long as `patience`. Success too where the file system knows no
  /// locks.
  std::error_code Acquire(const std::filesystem::path& name, std::chrono::milliseconds patience);

 private:
  Descriptor file;
};

/// What Acquire answers while another program holds the lock.
inline const std::error_code kLockIsTaken = make_error_code(std::errc::device_or_resource_busy);

}  // namespace vexa

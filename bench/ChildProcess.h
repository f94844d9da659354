#pragma once

#include <sys/types.h>

#include <string>
#include <utility>
#include <vector>

namespace vexa::bench {

/// A program started by the benchmark. It is ended with the object.
class ChildProcess {
 public:
  /// Starts `command` (program and arguments) in this process's environment.
  explicit ChildProcess(const std::vector<std::string>& command);
  ~ChildProcess() { Terminate(); }
  ChildProcess(ChildProcess&& other) noexcept : pid(std::exchange(other.pid, 0)) {}
  ChildProcess& operator=(ChildProcess&&) = delete;

  bool IsRunning();
  /// Asks it to end, as a session does at its end, and waits until it has.
  void Terminate();
  /// The most memory it has had in use at once, in KiB (VmHWM).
  long PeakMemory() const;

 private:
  pid_t pid;
};

}  // namespace vexa::bench

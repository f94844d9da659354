#include "ChildProcess.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <stdexcept>

namespace vexa::bench {

ChildProcess::ChildProcess(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  if (posix_spawnp(&pid, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("cannot start " + command[0]);
  }
}

bool ChildProcess::IsRunning() {
  if (pid != 0 && waitpid(pid, nullptr, WNOHANG) != 0) pid = 0;
  return pid != 0;
}

void ChildProcess::Terminate() {
  if (pid == 0) return;
  kill(pid, SIGTERM);
  waitpid(pid, nullptr, 0);
  pid = 0;
}

long ChildProcess::PeakMemory() const {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  for (std::string word; status >> word;) {
    if (word != "VmHWM:") continue;
    long size = 0;
    status >> size;
    return size;
  }
  throw std::runtime_error("the peak memory of a program cannot be read");
}

}  // namespace vexa::bench

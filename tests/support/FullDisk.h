#pragma once

#include <sys/resource.h>

#include <csignal>

namespace vexa::test {

/// Files of this process cannot grow beyond a size, as if the disk were full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{size, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    handler = std::signal(SIGXFSZ, SIG_IGN);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
  }

 private:
  rlimit before{};
  void (*handler)(int);
};

}  // namespace vexa::test

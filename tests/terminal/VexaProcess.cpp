#include "terminal/VexaProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>

namespace vexa::test {
namespace {

constexpr std::chrono::seconds kPatience(60);

struct Pipe {
  Pipe() {
    if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
  }
  ~Pipe() {
    CloseReader();
    CloseWriter();
  }
  void CloseReader() {
    if (ends[0] >= 0) close(ends[0]);
    ends[0] = -1;
  }
  void CloseWriter() {
    if (ends[1] >= 0) close(ends[1]);
    ends[1] = -1;
  }
  int ends[2];
};

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// Reads what is there; false: there will be no more.
bool Collect(int file, std::string& text) {
  std::array<char, 65536> piece;
  const ssize_t size = read(file, piece.data(), piece.size());
  if (size > 0) text.append(piece.data(), static_cast<std::size_t>(size));
  return size > 0;
}

}  // namespace

VexaRun RunVexa(const std::vector<std::string>& words, std::string_view input,
                const VexaPlace& place) {
  signal(SIGPIPE, SIG_IGN);
  Pipe in;
  Pipe out;
  Pipe errors;
  std::vector<std::string> arguments{VEXA_PROGRAM};
  arguments.insert(arguments.end(), words.begin(), words.end());
  std::vector<std::string> environment = place.environment;
  if (!place.home.empty()) environment.push_back("HOME=" + place.home);
  std::vector<char*> argumentPointers = Pointers(arguments);
  std::vector<char*> environmentPointers = Pointers(environment);
  const pid_t pid = fork();
  if (pid == 0) {
    signal(SIGPIPE, SIG_DFL);
    dup2(in.ends[0], 0);
    dup2(place.output.empty() ? out.ends[1] : open(place.output.c_str(), O_WRONLY), 1);
    dup2(errors.ends[1], 2);
    execve(VEXA_PROGRAM, argumentPointers.data(), environmentPointers.data());
    _exit(127);
  }
  in.CloseReader();
  out.CloseWriter();
  errors.CloseWriter();
  fcntl(in.ends[1], F_SETFL, O_NONBLOCK);

  VexaRun run;
  const auto end = std::chrono::steady_clock::now() + kPatience;
  if (input.empty()) in.CloseWriter();
  bool outOpen = true;
  bool errorsOpen = true;
  while ((outOpen || errorsOpen) && std::chrono::steady_clock::now() < end) {
    pollfd files[] = {{outOpen ? out.ends[0] : -1, POLLIN, 0},
                      {errorsOpen ? errors.ends[0] : -1, POLLIN, 0},
                      {in.ends[1], POLLOUT, 0}};
    if (poll(files, 3, 1000) <= 0) continue;
    if (files[0].revents != 0) outOpen = Collect(out.ends[0], run.out);
    if (files[1].revents != 0) errorsOpen = Collect(errors.ends[0], run.errors);
    if (files[2].revents != 0) {
      const ssize_t size = write(in.ends[1], input.data(), input.size());
      if (size > 0) input.remove_prefix(static_cast<std::size_t>(size));
      if (input.empty() || (size < 0 && errno != EAGAIN)) in.CloseWriter();
    }
  }
  if (outOpen || errorsOpen) kill(pid, SIGKILL);
  int status = 0;
  waitpid(pid, &status, 0);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return run;
}

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string LocaleFolder() {
  static const std::string folder = VEXA_LOCALES;
  return folder;
}

}  // namespace vexa::test

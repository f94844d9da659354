#include "terminal/Output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr std::size_t kPieceSize = std::size_t{1} << 16;
constexpr int kUsualColumns = 80;

}  // namespace

void Output::Write(std::string_view bytes) {
  if (HasFailed()) return;
  collected += bytes;
  if (collected.size() >= kPieceSize) Flush();
}

void Output::Write(std::wstring_view text) {
  if (HasFailed()) return;
  AppendNarrow(collected, text);
  if (collected.size() >= kPieceSize) Flush();
}

void Output::Flush() {
  std::string_view rest = collected;
  while (!rest.empty() && !HasFailed()) {
    const ssize_t written = write(file, rest.data(), rest.size());
    if (written >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      error = errno;
    }
  }
  collected.clear();
}

std::string Output::Failure() const {
  return std::strerror(error);
}

bool Output::IsTerminal() const {
  return isatty(file) != 0;
}

int Output::Columns() const {
  winsize size{};
  if (ioctl(file, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  const char* const wanted = std::getenv("COLUMNS");
  const int columns = wanted ? WholeNumber(wanted).value_or(0) : 0;
  return columns > 0 ? columns : kUsualColumns;
}

}  // namespace vexa::terminal

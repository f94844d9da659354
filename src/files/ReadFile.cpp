#include "files/ReadFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>

#include "files/Descriptor.h"

namespace vexa {

std::error_code ReadFile(const std::filesystem::path& file, std::size_t longest,
                         std::string& bytes) {
  const Descriptor source(open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  struct stat info {};
  if (!source || fstat(source.Number(), &info) != 0) return LastError();
  if (!S_ISREG(info.st_mode)) return make_error_code(std::errc::not_supported);
  bytes.clear();
  // To the end, not to the length: files that the system makes up say that they are empty.
  std::array<char, 1 << 16> piece;
  for (;;) {
    const ssize_t count = read(source.Number(), piece.data(), piece.size());
    if (count < 0 && errno != EINTR) return LastError();
    if (count == 0) return {};
    if (count > 0) bytes.append(piece.data(), static_cast<std::size_t>(count));
    if (bytes.size() > longest) return make_error_code(std::errc::file_too_large);
  }
}

}  // namespace vexa

// The least that any program does with a file of rows: reads it, turns its numbers into doubles,
// adds them up. The yardstick of the terminal program's statistics: bare_parse FILE

#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

int main(int argc, char** argv) {
  const int file = argc > 1 ? open(argv[1], O_RDONLY) : 0;
  std::string piece(std::size_t{1} << 18, '\0');
  std::size_t kept = 0;
  double sum = 0.0;
  for (;;) {
    const ssize_t size = read(file, piece.data() + kept, piece.size() - kept);
    if (size <= 0) break;
    const char* const end = piece.data() + kept + size;
    // What stands behind the last line end waits for the rest of its line.
    const auto* const lineEnd = static_cast<const char*>(
        memrchr(piece.data(), '\n', static_cast<std::size_t>(end - piece.data())));
    if (!lineEnd) break;
    for (const char* at = piece.data(); at < lineEnd;) {
      double value = 0.0;
      const auto [next, error] = std::from_chars(at, lineEnd, value);
      sum += value;
      at = error == std::errc{} ? next : at + 1;
    }
    kept = static_cast<std::size_t>(end - lineEnd - 1);
    std::memmove(piece.data(), lineEnd + 1, kept);
  }
  std::printf("%g\n", sum);
}

#pragma once

#include <string>
#include <string_view>

namespace vexa::terminal {

/// Writes bytes to an open file, collected into large pieces. A failure is remembered; what is
/// written behind it is dropped.
class Output {
 public:
  explicit Output(int fileDescriptor) : file(fileDescriptor) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  void Write(std::string_view bytes);
  /// Writes a wide text in UTF-8; what UTF-8 cannot hold becomes a replacement character.
  void Write(std::wstring_view text);
  /// Brings everything into the file.
  void Flush();
  bool HasFailed() const { return error != 0; }
  /// The system's words for the failure.
  std::string Failure() const;
  bool IsTerminal() const;
  /// The columns of the terminal; where there is none, $COLUMNS or 80.
  int Columns() const;

 private:
  int file;
  int error = 0;
  std::string collected;
};

}  // namespace vexa::terminal

#pragma once

#include <string>
#include <string_view>

namespace vexa::terminal {

/// Writes one JSON object or array after the other, each a line of its own.
class Json {
 public:
  void Begin(char bracket);
  /// The name of what is written next.
  void Name(std::wstring_view name);
  void Text(std::wstring_view text);
  /// All digits; null for what is no number.
  void Number(double value);
  void Null() { Value("null"); }
  void End(char bracket);

  void Member(std::wstring_view name, std::wstring_view text) { Name(name), Text(text); }
  void Member(std::wstring_view name, double value) { Name(name), Number(value); }

  /// What was written; the object is as new.
  std::string Take();

 private:
  void Value(std::string_view text);
  void Separate();
  void Quote(std::wstring_view text);

  std::string written;
  /// Whether a comma stands before the next value.
  bool goesOn = false;
};

}  // namespace vexa::terminal

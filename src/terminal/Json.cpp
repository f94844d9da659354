#include "terminal/Json.h"

#include <cmath>
#include <utility>

#include "terminal/Texts.h"

namespace vexa::terminal {

void Json::Begin(char bracket) {
  Separate();
  written += bracket;
  goesOn = false;
}

void Json::Name(std::wstring_view name) {
  Separate();
  Quote(name);
  written += ':';
  goesOn = false;
}

void Json::Text(std::wstring_view text) {
  Separate();
  Quote(text);
}

void Json::Number(double value) {
  if (!std::isfinite(value)) return Null();
  Value(ExactText(value));
}

void Json::End(char bracket) {
  written += bracket;
  goesOn = true;
}

std::string Json::Take() {
  goesOn = false;
  return std::exchange(written, {}) + "\n";
}

void Json::Value(std::string_view text) {
  Separate();
  written += text;
}

void Json::Separate() {
  if (goesOn) written += ',';
  goesOn = true;
}

void Json::Quote(std::wstring_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  written += '"';
  for (const wchar_t c : text) {
    if (c == L'"' || c == L'\\') {
      written += '\\';
      written += static_cast<char>(c);
    } else if (c >= 0 && c < 0x20) {
      written += "\\u00";
      written += kDigits[static_cast<std::size_t>(c) / 16];
      written += kDigits[static_cast<std::size_t>(c) % 16];
    } else {
      AppendNarrow(written, {&c, 1});
    }
  }
  written += '"';
}

}  // namespace vexa::terminal

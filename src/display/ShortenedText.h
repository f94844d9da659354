#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexa {

/// A text longer than `longest` is shown as its first `kept` characters and "...".
struct ShorteningRule {
  std::size_t longest;
  std::size_t kept;
};

/// `text` as `rule` shows it.
inline std::wstring Shortened(std::wstring_view text, const ShorteningRule& rule) {
  if (text.size() <= rule.longest) return std::wstring(text);
  return std::wstring(text.substr(0, rule.kept)) + L"...";
}

}  // namespace vexa

#include "toolkit/TypedSearch.h"

#include <algorithm>

#include "engine/AsciiCase.h"

namespace vexa {
namespace {

bool StartsWith(std::wstring_view text, std::wstring_view typed) {
  return text.size() >= typed.size() &&
         std::equal(typed.begin(), typed.end(), text.begin(),
                    [](wchar_t a, wchar_t b) { return ToLowerAscii(a) == ToLowerAscii(b); });
}

bool IsInWord(wchar_t c) {
  const wchar_t lower = ToLowerAscii(c);
  return (lower >= L'a' && lower <= L'z') || (c >= L'0' && c <= L'9') || c > 0x7F;
}

bool HasWord(std::wstring_view text, std::wstring_view typed) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (!IsInWord(text[i - 1]) && IsInWord(text[i]) && StartsWith(text.substr(i), typed)) {
      return true;
    }
  }
  return false;
}

/// The first entry from `start` on, around the list, that `matches`; -1: none.
int FindFrom(const std::vector<std::wstring>& entries, std::size_t start, std::wstring_view typed,
             bool (*matches)(std::wstring_view, std::wstring_view)) {
  for (std::size_t step = 0; step < entries.size(); ++step) {
    const std::size_t index = (start + step) % entries.size();
    if (matches(entries[index], typed)) return static_cast<int>(index);
  }
  return -1;
}

}  // namespace

int FindTyped(const std::vector<std::wstring>& entries, std::wstring_view typed, int current) {
  if (typed.empty()) return -1;
  const std::wstring_view letter = typed.substr(0, 1);
  const bool steps = typed.find_first_not_of(typed.front()) == std::wstring_view::npos;
  const auto here = static_cast<std::size_t>(std::max(current, 0));
  const std::size_t start = steps ? static_cast<std::size_t>(current + 1) : here;
  const std::wstring_view wanted = steps ? letter : typed;
  const int found = FindFrom(entries, start, wanted, StartsWith);
  return found >= 0 ? found : FindFrom(entries, start, wanted, HasWord);
}

}  // namespace vexa

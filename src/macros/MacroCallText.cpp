#include "macros/MacroCallText.h"

namespace vexa {
namespace {

constexpr std::wstring_view kBeforeCall = L"^+-*/%(";
constexpr std::wstring_view kBehindCall = L"^+-*/%)";

}  // namespace

bool MayPrecedeCall(std::wstring_view text) {
  return text.empty() || kBeforeCall.find(text.back()) != std::wstring_view::npos;
}

std::optional<MacroCallText> ReadMacroCall(std::wstring_view text) {
  MacroCallText call;
  int depth = 0;
  std::size_t open = std::wstring_view::npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    // Commas count at every depth, and in the name.
    if (text[i] == L',') ++call.commas;
    if (text[i] == L'(') {
      ++depth;
      if (open == std::wstring_view::npos) open = i;
    }
    if (text[i] == L')' && --depth == 0) {
      const bool mayEnd =
          i + 1 == text.size() || kBehindCall.find(text[i + 1]) != std::wstring_view::npos;
      if (!mayEnd) return std::nullopt;
      call.name = text.substr(0, open);
      call.arguments = text.substr(open + 1, i - open - 1);
      call.length = i + 1;
      return call;
    }
  }
  return std::nullopt;
}

}  // namespace vexa

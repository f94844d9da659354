#include "macros/MacroCallText.h"

namespace vexa {

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
      call.name = text.substr(0, open);
      call.arguments = text.substr(open + 1, i - open - 1);
      call.length = i + 1;
      return call;
    }
  }
  return std::nullopt;
}

}  // namespace vexa

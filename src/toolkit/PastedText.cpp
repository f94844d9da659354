#include "toolkit/PastedText.h"

#include "toolkit/LineText.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TypesetNumbers.h"

namespace vexa {
namespace {

/// A character of typeset formulas and what an expression has in its place.
struct Replacement {
  wchar_t typeset;
  wchar_t plain;
};
constexpr Replacement kReplacements[] = {
    {L'\u00d7', L'*'},  // multiplication sign
    {L'\u00b7', L'*'},  // middle dot
    {L'\u22c5', L'*'},  // dot operator
    {L'\u00f7', L'/'},  // division sign
    {kTypesetMinus, L'-'},
};

wchar_t Plain(wchar_t c) {
  if (kHardBlanks.find(c) != kHardBlanks.npos) return L' ';
  for (const Replacement& replacement : kReplacements) {
    if (replacement.typeset == c) return replacement.plain;
  }
  return c;
}

}  // namespace

std::wstring PastedText(std::wstring_view text) {
  std::wstring line = LineText(text, text.size());
  if (ReadNumberBox(line)) std::erase_if(line, IsGroupMark);
  for (wchar_t& c : line) c = Plain(c);
  return line;
}

}  // namespace vexa

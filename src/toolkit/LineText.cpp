#include "toolkit/LineText.h"

namespace vexa {
namespace {

/// Line feed, vertical tab, form feed, carriage return, next line, line and paragraph separator,
/// and the two noncharacters that the toolkit's documents use as block marks.
constexpr std::wstring_view kLineBreaks = L"\n\v\f\r\x85\x2028\x2029\xFDD0\xFDD1";

}  // namespace

std::wstring LineText(std::wstring_view text, std::size_t room) {
  std::wstring line;
  for (std::size_t at = 0; at < text.size() && line.size() < room; ++at) {
    if (text[at] == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n') continue;
    line += kLineBreaks.find(text[at]) == kLineBreaks.npos ? text[at] : L' ';
  }
  return line;
}

}  // namespace vexa

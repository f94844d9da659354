#include "app/History.h"

#include <algorithm>
#include <utility>

#include "display/FormatResult.h"
#include "display/SettingsLayout.h"
#include "engine/AsciiCase.h"
#include "engine/NumberText.h"

namespace vexa {
namespace {

constexpr HistoryKind kHistory{.capacity = History::kCapacity,
                               .count = settings::kCalHistoryCount,
                               .entry = settings::kCalHistory,
                               .caption = {.longest = 17, .kept = 14}};

/// A result entry is "=[D]" and a text: where its base letter and its text stand.
constexpr std::size_t kBaseLetter = 2;
constexpr std::size_t kResultText = 4;

/// How the letter of a result entry's tag reads the entry's text.
struct ResultBase {
  BaseType base;
  wchar_t letter;
  double (*read)(std::wstring_view text);
};

double ReadDecimal(std::wstring_view text) {
  std::wstring digits(text);
  std::erase(digits, L',');
  return TextToDouble(digits);
}

/// Characters that are no digits count for the positions of the others, as 0.
double ReadHex(std::wstring_view text) {
  double value = 0.0;
  for (const wchar_t c : text) {
    const wchar_t lower = ToLowerAscii(c);
    const int digit = lower >= L'0' && lower <= L'9'   ? lower - L'0'
                      : lower >= L'a' && lower <= L'f' ? lower - L'a' + 10
                                                       : 0;
    value = value * 16 + digit;
  }
  return value;
}

/// Every character is taken as a digit: the entry was written by this program.
double ReadDigits(std::wstring_view text, int radix) {
  double value = 0.0;
  for (const wchar_t c : text) value = value * radix + static_cast<double>(c - L'0');
  return value;
}

double ReadBinary(std::wstring_view text) {
  return ReadDigits(text, 2);
}
double ReadOctal(std::wstring_view text) {
  return ReadDigits(text, 8);
}

/// Any other letter or base counts as the first.
constexpr ResultBase kResultBases[] = {
    {BaseType::Dec, L'D', ReadDecimal},
    {BaseType::Hex, L'H', ReadHex},
    {BaseType::Bin, L'B', ReadBinary},
    {BaseType::Oct, L'O', ReadOctal},
};

template <typename Predicate>
const ResultBase& FindBase(Predicate matches) {
  const auto* const found = std::find_if(std::begin(kResultBases), std::end(kResultBases), matches);
  return found == std::end(kResultBases) ? kResultBases[0] : *found;
}

}  // namespace

History::History() : TextHistory(kHistory) {}

std::wstring ResultEntry(BaseType base, std::wstring_view displayText) {
  const ResultBase& tag = FindBase([&](const ResultBase& b) { return b.base == base; });
  std::wstring entry = L"=[";
  entry += tag.letter;
  entry += L']';
  entry += displayText;
  return entry;
}

std::wstring RecallText(std::wstring_view entry, BaseType base, int precision) {
  if (!entry.starts_with(L'=')) return std::wstring(entry);
  const wchar_t letter = entry.size() > kBaseLetter ? entry[kBaseLetter] : L'D';
  const ResultBase& tag = FindBase([&](const ResultBase& b) { return b.letter == letter; });
  const double value = tag.read(entry.substr(std::min(kResultText, entry.size())));
  return FormatResult(value, DisplayType::FloatingPoint, precision, base);
}

}  // namespace vexa

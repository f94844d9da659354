// What a pasted text becomes in an edit line, and what a copied result is elsewhere.

#include "toolkit/PastedText.h"

#include <gtest/gtest.h>

#include "toolkit/CopiedText.h"

namespace vexa {
namespace {

TEST(PastedText, Table) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      // A number as a whole loses its grouping.
      {L"1,234.5", L"1234.5"},
      {L"-1,234,567", L"-1234567"},
      {L"1,234e5", L"1234e5"},
      {L" 1,234\n", L" 1234 "},
      {L"1\u00a0234\u00a0567", L"1234567"},
      {L"\u22121\u202f234.5", L"-1234.5"},
      // Anything else keeps its commas: they stand between a macro's arguments.
      {L"M:f(1,234)", L"M:f(1,234)"},
      {L"1,234+1", L"1,234+1"},
      {L"1,23", L"1,23"},
      {L"12,34,567", L"12,34,567"},
      {L"1,234,", L"1,234,"},
      // Typeset signs.
      {L"2\u00d73\u00f74\u22125\u00b76", L"2*3/4-5*6"},
      {L"2\u22c53", L"2*3"},
      {L"1\u00a0+\u20092\u202f-\u20073", L"1 + 2 - 3"},
      // All else stays.
      {L"sin(30) & \x1F600\t", L"sin(30) & \x1F600\t"},
      {L"1\r\n+2", L"1 +2"},
      {L"", L""},
  };
  for (const auto& [text, pasted] : cases) EXPECT_EQ(PastedText(text), pasted);
}

TEST(PastedText, LongTextsAreWhole) {
  EXPECT_EQ(PastedText(std::wstring(20000, L'1')).size(), std::size_t{20000});
}

TEST(CopiedText, Table) {
  const struct {
    const wchar_t* shown;
    const wchar_t* selected;
    const wchar_t* copied;
  } cases[] = {
      {L"1,234.5", L"1,234.5", L"1234.5"},
      {L"-1,234,567", L"1,234", L"1234"},
      {L"1,234,567", L"1,2", L"12"},
      {L"1.50000e+013", L"1.50000e+013", L"1.50000e+013"},
      {L"FFFF", L"FFFF", L"FFFF"},
      {L"Expression error.", L"Expression error.", L"Expression error."},
      {L"a,b is not supported.", L"a,b", L"a,b"},
      {L"1,234 Meters\n=\n5 Feet", L"1,234", L"1234"},
      {L"1,234 Meters\n=\n5 Feet", L"1,234 Meters\n=\n5 Feet", L"1,234 Meters\n=\n5 Feet"},
  };
  for (const auto& c : cases) EXPECT_EQ(CopiedText(c.shown, c.selected), c.copied);
}

}  // namespace
}  // namespace vexa

#include "engine/AsciiCase.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(AsciiCase, Characters) {
  for (wchar_t c = 0; c < 0x3000; ++c) {
    const bool capital = c >= L'A' && c <= L'Z';
    const auto expected = capital ? static_cast<wchar_t>(c + 32) : c;
    ASSERT_EQ(ToLowerAscii(c), expected) << static_cast<int>(c);
  }
}

TEST(AsciiCase, Texts) {
  const std::pair<std::wstring_view, std::wstring_view> cases[] = {
      {L"", L""},
      {L"SIN(30)", L"sin(30)"},
      {L"Pi*1E5", L"pi*1e5"},
      {L"@[`{", L"@[`{"},
      {L"\u00c4\u0130\u03a9K\u212a", L"\u00c4\u0130\u03a9k\u212a"},
      {std::wstring_view(L"A\0B", 3), std::wstring_view(L"a\0b", 3)},
  };
  for (const auto& [text, lower] : cases) EXPECT_EQ(ToLowerAscii(text), lower);
}

}  // namespace
}  // namespace vexa

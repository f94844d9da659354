#include "files/Utf8.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(Utf8, EveryCharacterComesBack) {
  for (wchar_t c = 0; c <= 0x10FFFF; ++c) {
    if (!IsUnicodeScalar(c)) continue;
    std::string bytes;
    AppendUtf8(bytes, c);
    const auto text = DecodeUtf8(bytes);
    ASSERT_TRUE(text) << static_cast<unsigned>(c);
    ASSERT_EQ(*text, std::wstring(1, c)) << static_cast<unsigned>(c);
  }
}

TEST(Utf8, KnownForms) {
  std::string bytes;
  for (const wchar_t c : {L'A', L'\xE9', L'\x20AC', L'\x1F600'}) AppendUtf8(bytes, c);
  EXPECT_EQ(bytes, "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf8, RefusesWhatIsNotWellFormed) {
  for (const char* bytes : {"\x80", "\xC3",
                            "\xC3"
                            "A",
                            "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                            "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFF", "\xE2\x82"}) {
    EXPECT_FALSE(DecodeUtf8(bytes)) << bytes;
  }
}

TEST(Utf8, SurrogatesAndBeyondAreNoScalars) {
  EXPECT_TRUE(IsUnicodeScalar(0xD7FF));
  EXPECT_FALSE(IsUnicodeScalar(0xD800));
  EXPECT_FALSE(IsUnicodeScalar(0xDFFF));
  EXPECT_TRUE(IsUnicodeScalar(0xE000));
  EXPECT_TRUE(IsUnicodeScalar(0x10FFFF));
  EXPECT_FALSE(IsUnicodeScalar(0x110000));
  EXPECT_FALSE(IsUnicodeScalar(static_cast<wchar_t>(-1)));
}

}  // namespace
}  // namespace vexa

#include "display/IniText.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

using namespace std::string_literals;

const std::wstring kTexts[] = {
    L"",
    L" ",
    L"plain",
    L" blanks at both ends ",
    L"a;b,c=d\"e\\f",
    L"@",
    L"@@two",
    L"@Variant(x)",
    L"\"quoted\"",
    L"line\nbreak\r\ntab\t.",
    L"a\0b"s,
    L"\0"s + L"12",
    L"\x01"s + L"fe",
    L"\x7F\x80\x9F\xA0\x2028",
    L"grün \x20AC \x1F600 \U0010FFFF",
    L"lone \xD800 surrogate \xDFFF",
    L"[section]",
    L"#comment",
    L"M:area( 2, 3)",
    L"=[D]1,234.5",
    L"trailing backslash \\",
    L"%41",
};

TEST(IniText, EveryTextComesBackExactly) {
  IniValues values;
  int n = 0;
  for (const std::wstring& text : kTexts)
    values[{L"Config", L"Entry " + std::to_wstring(n++)}] = text;
  const std::string bytes = FormatIni(values);
  const auto read = ParseIni(bytes);
  ASSERT_TRUE(read) << bytes;
  EXPECT_EQ(*read, values) << bytes;
}

TEST(IniText, EveryCharacterComesBackExactly) {
  for (wchar_t c = 0; c <= 0x10FFFF; c = c < 0x3000 ? c + 1 : c + 257) {
    const IniValues values{{{L"S", L"E"}, {c, L'1', c, L'G'}}};
    const auto read = ParseIni(FormatIni(values));
    ASSERT_TRUE(read) << static_cast<unsigned>(c);
    ASSERT_EQ(*read, values) << static_cast<unsigned>(c);
  }
}

TEST(IniText, NamesMayHoldAnyCharacter) {
  IniValues values;
  for (const std::wstring& name : kTexts) values[{name, name}] = L"1";
  const auto read = ParseIni(FormatIni(values));
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, values);
}

TEST(IniText, WritesWhatPeopleCanRead) {
  const IniValues values{{{L"Config", L"Angle Type"}, L"2"},
                         {{L"Config", L"Mode"}, L"1"},
                         {{L"History", L"CalHistory1"}, L"=[D]1,234"}};
  EXPECT_EQ(FormatIni(values),
            "[Config]\nAngle%20Type=2\nMode=1\n\n[History]\nCalHistory1=\"=[D]1,234\"\n");
}

struct Reading {
  const char* bytes;
  std::wstring text;  // of section "S", entry "E"
};

TEST(IniText, ReadsFilesEditedByHand) {
  const Reading readings[] = {
      {"[S]\nE=1", L"1"},
      {"[S]\r\nE=1\r\n", L"1"},
      {"\xEF\xBB\xBF[S]\nE=1\n", L"1"},
      {"; note\n# note\n\n [ S ] \n E = 1 2 \n", L"1 2"},
      {"[S]\nE=max(1, 2),3\n", L"max(1, 2),3"},
      {"[S]\nE=a=b\n", L"a=b"},
      {"[S]\nE=\"a, \"b\n", L"a, b"},
      {"[S]\nE=@@x\n", L"@x"},
      {"[S]\nE=@x\n", L"@x"},
      {"[S]\nE=\\x41\\t\\101\\q\\xg\\\n", L"A\tAqxg"},
      {"[S]\nE=\\xFFFFFFFFFFFFFFFF\n", L"\xFFFD"},
      {"[S]\nE=1\n[T]\nE=2\n[S]\nE=3\n", L"3"},
      {"[%53]\n%45=1\n", L"1"},
      {"[S]\nE=\n", L""},
  };
  for (const Reading& reading : readings) {
    const auto values = ParseIni(reading.bytes);
    ASSERT_TRUE(values) << reading.bytes;
    ASSERT_TRUE(values->contains({L"S", L"E"})) << reading.bytes;
    EXPECT_EQ(values->at({L"S", L"E"}), reading.text) << reading.bytes;
  }
}

TEST(IniText, TellsDamage) {
  const std::string damaged[] = {
      "[S]\nE=1\0"s,       "\0\0\0\0"s,         "[S\nE=1\n",   "[S]\nno sign\n", "[S]\nE=\"open\n",
      "[S]\nE=\xFF\xFE\n", "[S]\nE=\xC0\x80\n", "\x89PNG\r\n", "E=\xED\xA0\x80",
  };
  for (const std::string& bytes : damaged) EXPECT_FALSE(ParseIni(bytes)) << bytes;
}

TEST(IniText, AnEmptyFileIsAnEmptyStore) {
  EXPECT_EQ(ParseIni(""), IniValues());
  EXPECT_EQ(ParseIni("\n\n"), IniValues());
  EXPECT_EQ(FormatIni({}), "");
}

TEST(IniText, IntegersAreWholeAndWithin32Bits) {
  EXPECT_EQ(ParseIniInteger(L"0"), 0);
  EXPECT_EQ(ParseIniInteger(L" -12 "), -12);
  EXPECT_EQ(ParseIniInteger(L"+7"), 7);
  EXPECT_EQ(ParseIniInteger(L"2147483647"), 2147483647);
  EXPECT_EQ(ParseIniInteger(L"-2147483648"), -2147483647 - 1);
  for (const wchar_t* text : {L"", L" ", L"x", L"1.5", L"1 2", L"2147483648", L"-2147483649",
                              L"99999999999999999999", L"+-1", L"+", L"-", L"0x10", L"\x0661"}) {
    EXPECT_FALSE(ParseIniInteger(text));
  }
}

}  // namespace
}  // namespace vexa

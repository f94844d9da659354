#include "files/SettingsJson.h"

#include <gtest/gtest.h>

#include <limits>

namespace vexa {
namespace {

using namespace std::string_literals;

const std::wstring kTexts[] = {
    L"",
    L" ",
    L"plain",
    L" blanks at both ends ",
    L"a;b,c=d\"e\\f",
    L"line\nbreak\r\ntab\t.",
    L"a\0b"s,
    L"\0"s + L"12",
    L"\x01"s + L"fe",
    L"\x7F\x80\x9F\xA0\x2028",
    L"gr\xFCn \x20AC \x1F600 \U0010FFFF",
    L"[section]",
    L"a/b",
    L"M:area( 2, 3)",
    L"=[D]1,234.5",
    L"\\ud800",
    L"12",
};

TEST(SettingsJson, EveryTextComesBackExactlyAsValueAndAsName) {
  SettingsValues values;
  for (const std::wstring& text : kTexts) values[{text, text}] = text;
  const std::string bytes = FormatSettings(values);
  EXPECT_EQ(ParseSettings(bytes), values) << bytes;
}

TEST(SettingsJson, EveryCharacterComesBackExactly) {
  for (wchar_t c = 0; c <= 0x10FFFF; c = c < 0x3000 ? c + 1 : c + 257) {
    if (c >= 0xD800 && c <= 0xDFFF) continue;
    const SettingsValues values{{{L"S", L"E"}, std::wstring{c, L'1', c, L'G'}}};
    ASSERT_EQ(ParseSettings(FormatSettings(values)), values) << static_cast<unsigned>(c);
  }
}

TEST(SettingsJson, IntegersComeBackAsIntegers) {
  for (const int value :
       {0, -1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    const SettingsValues values{{{L"S", L"E"}, value}};
    EXPECT_EQ(ParseSettings(FormatSettings(values)), values);
  }
}

TEST(SettingsJson, WritesWhatPeopleCanRead) {
  const SettingsValues values{{{L"Config", L"Angle Type"}, 2},
                              {{L"Config", L"Mode"}, 1},
                              {{L"History", L"CalHistory1"}, L"=[D]1,234"}};
  EXPECT_EQ(FormatSettings(values),
            "{\n  \"Config\": {\n    \"Angle Type\": 2,\n    \"Mode\": 1\n  },\n"
            "  \"History\": {\n    \"CalHistory1\": \"=[D]1,234\"\n  }\n}\n");
}

TEST(SettingsJson, HalfAPairIsReplaced) {
  const SettingsValues values{{{L"S", L"E"}, L"lone \xD800 surrogate \xDFFF"}};
  const SettingsValues expected{{{L"S", L"E"}, L"lone \xFFFD surrogate \xFFFD"}};
  EXPECT_EQ(ParseSettings(FormatSettings(values)), expected);
}

struct Reading {
  const char* bytes;
  SettingsValues values;
};

TEST(SettingsJson, ReadsFilesOfOthers) {
  const Reading readings[] = {
      {"", {}},
      {" \r\n\t", {}},
      {"{}", {}},
      {"\xEF\xBB\xBF{\"S\":{\"E\":1}}", {{{L"S", L"E"}, 1}}},
      {"{\"S\":{}}", {}},
      {"{\"S\":{\"E\":1,\"E\":2}}", {{{L"S", L"E"}, 2}}},
      {"{\"S\":{\"E\":1},\"S\":{\"F\":2}}", {{{L"S", L"E"}, 1}, {{L"S", L"F"}, 2}}},
      {"{\"S\":{\"E\":2147483648}}", {{{L"S", L"E"}, L"2147483648"}}},
      {"{\"S\":{\"E\":-99999999999999999999}}", {{{L"S", L"E"}, L"-99999999999999999999"}}},
      {"{\"S\":{\"E\":1.50}}", {{{L"S", L"E"}, L"1.50"}}},
      {"{\"S\":{\"E\":true,\"F\":false,\"G\":null}}",
       {{{L"S", L"E"}, L"true"}, {{L"S", L"F"}, L"false"}}},
      {"{\"S\":{\"E\":\"\\ud83d\\ude00\\u20ac\"}}", {{{L"S", L"E"}, L"\x1F600\x20AC"}}},
  };
  for (const Reading& reading : readings) {
    EXPECT_EQ(ParseSettings(reading.bytes), reading.values) << reading.bytes;
  }
}

TEST(SettingsJson, TellsDamage) {
  const std::string damaged[] = {
      "x",
      "[]",
      "1",
      "null",
      "\0\0\0\0"s,
      "{\"S\":{\"E\":1}",
      "{\"S\":{\"E\":1}}}",
      "{\"S\":{\"E\":1}}\0"s,
      "{\"S\":{\"E\":1}} garbage",
      "{\"S\":1}",
      "{\"S\":\"text\"}",
      "{\"S\":null}",
      "{\"S\":{\"E\":[]}}",
      "{\"S\":{\"E\":{}}}",
      "{\"S\":{\"E\":1,}}",
      "{\"S\":{\"E\":'x'}}",
      "{\"S\":{\"E\":1e999}}",
      "{\"S\":{\"E\":\"\xFF\"}}",
      "{\"S\":{\"E\":\"\xC0\x80\"}}",
      "{\"S\":{\"E\":\"\xED\xA0\x80\"}}",
      "{\"S\":{\"E\":\"\\ud800\"}}",
      "{\"S\":{\"E\":\"line\nbreak\"}}",
      "[Config]\nMode=2\n",
  };
  for (const std::string& bytes : damaged) EXPECT_FALSE(ParseSettings(bytes)) << bytes;
}

TEST(SettingsJson, DeepNestingIsDamageAndNothingWorse) {
  for (const char* const piece : {"[", "{\"a\":"}) {
    std::string bytes;
    for (int n = 0; n < 1'000'000; ++n) bytes += piece;
    EXPECT_FALSE(ParseSettings(bytes));
  }
}

TEST(SettingsJson, MoreEntriesThanAnyVersionWroteAreDamage) {
  SettingsValues values;
  for (std::size_t n = 0; n < kMostSettings; ++n) values[{L"S", std::to_wstring(n)}] = 1;
  EXPECT_EQ(ParseSettings(FormatSettings(values)), values);
  values[{L"S", L"one more"}] = 1;
  EXPECT_FALSE(ParseSettings(FormatSettings(values)));
}

}  // namespace
}  // namespace vexa

#include "files/OldSettings.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

using namespace std::string_literals;

struct Reading {
  std::string bytes;
  std::wstring text;  // of section "S", entry "E"
};

TEST(OldSettings, ReadsWhatEarlierVersionsWrote) {
  const Reading readings[] = {
      {"[S]\nE=1\n", L"1"},
      {"[S]\nE=\n", L""},
      {"[S]\nE=\" blanks at both ends \"\n", L" blanks at both ends "},
      {"[S]\nE=\"a;b,c=d\\\"e\\\\f\"\n", L"a;b,c=d\"e\\f"},
      {"[S]\nE=@@two\n", L"@two"},
      {"[S]\nE=line\\nbreak\\r\\ntab\\t.\n", L"line\nbreak\r\ntab\t."},
      {"[S]\nE=a\\x0\\x62\n", L"a\0b"s},
      {"[S]\nE=\\x1\\x66\\x65\n", L"\x01"s + L"fe"},
      {"[S]\nE=gr\xC3\xBCn \xE2\x82\xAC \xF0\x9F\x98\x80\n", L"gr\xFCn \x20AC \x1F600"},
      {"[S]\nE=lone \\xd800 surrogate\n", L"lone \xFFFD surrogate"},
      {"[S]\nE=\"=[D]1,234.5\"\n", L"=[D]1,234.5"},
      {"[%53]\n%45=1\n", L"1"},
      {"[%U0053]\n%U0045=1\n", L"1"},
  };
  for (const Reading& reading : readings) {
    const auto values = ParseOldSettings(reading.bytes);
    ASSERT_TRUE(values) << reading.bytes;
    const SettingsValues expected{{{L"S", L"E"}, reading.text}};
    EXPECT_EQ(*values, expected) << reading.bytes;
  }
}

TEST(OldSettings, ReadsFilesEditedByHand) {
  const Reading readings[] = {
      {"[S]\nE=1", L"1"},
      {"[S]\r\nE=1\r\n", L"1"},
      {"\xEF\xBB\xBF[S]\nE=1\n", L"1"},
      {"; note\n# note\n\n [ S ] \n E = 1 2 \n", L"1 2"},
      {"[S]\nE=max(1, 2),3\n", L"max(1, 2),3"},
      {"[S]\nE=a=b\n", L"a=b"},
      {"[S]\nE=\\q\\\n", L"q"},
      {"[S]\nE=\\xFFFFFFFFFFFFFFFF\n", L"\xFFFD"},
      {"[S]\nE=1\n[T]\nE=2\n[S]\nE=3\n", L"3"},
  };
  for (const Reading& reading : readings) {
    const auto values = ParseOldSettings(reading.bytes);
    ASSERT_TRUE(values) << reading.bytes;
    ASSERT_TRUE(values->contains({L"S", L"E"})) << reading.bytes;
    EXPECT_EQ(values->at({L"S", L"E"}), SettingValue(reading.text)) << reading.bytes;
  }
}

TEST(OldSettings, ASlashInANameStaysThere) {
  const SettingsValues expected{{{L"a", L"b/c"}, L"1"}, {{L"a/b", L"c"}, L"2"}};
  EXPECT_EQ(ParseOldSettings("[a]\nb/c=1\n[a%2Fb]\nc=2\n"), expected);
}

TEST(OldSettings, TellsDamage) {
  const std::string damaged[] = {
      "[S]\nE=1\0"s,       "\0\0\0\0"s,         "[S\nE=1\n",   "[S]\nno sign\n", "[S]\nE=\"open\n",
      "[S]\nE=\xFF\xFE\n", "[S]\nE=\xC0\x80\n", "\x89PNG\r\n", "E=\xED\xA0\x80",
  };
  for (const std::string& bytes : damaged) EXPECT_FALSE(ParseOldSettings(bytes)) << bytes;
}

TEST(OldSettings, MoreEntriesThanAnyVersionWroteAreDamage) {
  std::string bytes = "[S]\n";
  for (std::size_t n = 0; n < kMostSettings; ++n) bytes += std::to_string(n) + "=\n";
  EXPECT_TRUE(ParseOldSettings(bytes));
  EXPECT_FALSE(ParseOldSettings(bytes + "one more=\n"));
}

TEST(OldSettings, AnEmptyFileIsAnEmptyStore) {
  EXPECT_EQ(ParseOldSettings(""), SettingsValues());
  EXPECT_EQ(ParseOldSettings("\n\n"), SettingsValues());
}

}  // namespace
}  // namespace vexa

#include "terminal/Texts.h"

#include <gtest/gtest.h>

#include <limits>

#include "terminal/Json.h"

namespace vexa::terminal {
namespace {

TEST(Texts, Utf8BothWays) {
  EXPECT_EQ(Wide("2\u00d73"), L"2\u00d73");
  EXPECT_EQ(Narrow(L"\u03a3X \U0001F600"), "\u03a3X \U0001F600");
  EXPECT_EQ(Wide("a\xff\xc3"), L"a\uFFFD\uFFFD");
  EXPECT_EQ(Narrow(std::wstring(1, static_cast<wchar_t>(0xD800))), "\uFFFD");
}

TEST(Texts, ControlCharactersAreNotPrinted) {
  EXPECT_EQ(Printable(L"a\x1b[2J\x7f\x9f\tb"), L"a\uFFFD[2J\uFFFD\uFFFD\uFFFDb");
}

TEST(Texts, WholeNumbers) {
  EXPECT_EQ(WholeNumber("-12"), -12);
  for (const char* text : {"", "1.0", "1 ", " 1", "one", "99999999999"}) {
    EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
  }
}

TEST(Json, ObjectsAndArrays) {
  Json json;
  json.Begin('{');
  json.Member(L"a\"\\", L"line\n\u03c3");
  json.Name(L"numbers");
  json.Begin('[');
  json.Number(0.1);
  json.Number(std::numeric_limits<double>::infinity());
  json.Begin('{');
  json.End('}');
  json.End(']');
  json.End('}');
  EXPECT_EQ(json.Take(), "{\"a\\\"\\\\\":\"line\\u000a\u03c3\",\"numbers\":[0.1,null,{}]}\n");
  json.Null();
  EXPECT_EQ(json.Take(), "null\n");
}

}  // namespace
}  // namespace vexa::terminal

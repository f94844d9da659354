#include "engine/Tokenizer.h"

#include <gtest/gtest.h>

#include <charconv>
#include <string>

#include "engine/CalcEngine.h"
#include "engine/Dialects.h"
#include "engine/ExprParser.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

/// The records in writing: a number by its value, a function by its code, others by their mark.
std::string Written(const TokenList& list) {
  std::string text;
  for (int i = 0; i < list.tokenCount; ++i) {
    const Token& token = list.tokens[static_cast<std::size_t>(i)];
    if (i > 0) text += ' ';
    if (token.op == 'F') {
      text += 'F' + std::to_string(token.funcCode);
    } else if (token.op != 0) {
      text += static_cast<char>(token.op);
    } else {
      char number[32];
      text.append(number, std::to_chars(number, number + sizeof number, token.value).ptr);
    }
  }
  return text;
}

struct TokenCase {
  std::wstring text;
  std::string records;
  std::wstring error = {};
};

void ExpectTokens(const Dialect& dialect, const TokenCase& c) {
  CalcEngine list;
  Tokenize(c.text, dialect, list);
  EXPECT_EQ(Written(list), c.records) << test::Narrow(c.text);
  EXPECT_EQ(list.errorText, c.error) << test::Narrow(c.text);
  EXPECT_EQ(list.errorFlag, c.error.empty() ? 0 : 1) << test::Narrow(c.text);
}

TEST(Tokenizer, DecimalRecords) {
  const TokenCase cases[] = {
      {L"", ""},
      {L"   ", ""},
      {L"8>>1", "8 > 1"},
      {L"1<<40", "1 < 40"},
      {L"2+3*4-5/6%7^8!", "2 + 3 * 4 - 5 / 6 % 7 ^ 8 !"},
      {L" ( 2 ) ", "( 2 )"},
      {L"5c2p1", "5 c 2 p 1"},
      {L"5 p", "5 p"},
      {L"5c", "5 c"},
      {L"2pi", "2 3.141592653589793"},
      {L"pi", "3.141592653589793"},
      {L"sin30", "F41 30"},
      {L"sin 30", "F41 30"},
      {L"sin ", "F41"},
      {L"sin(cos(1))", "F41 ( F42 ( 1 ) )"},
      {L"1e-3", "0.001"},
      {L"1e--5", "1 - 5"},
      {L"sin asin sqrt int frac log ln exp sinh 1", "F41 F44 F53 F55 F56 F47 F48 F49 F50 1"},
      {L"1 2", "1 2"},
      {L"1..", "", L"Expression error."},
      {L"2+1.2.3", "2 +", L"Expression error."},
      {L"2<3", "2", L"< is not supported."},
      {L"2>", "2", L"> is not supported."},
      {L"2<>3", "2", L"<> is not supported."},
      {L"2<<<3", "2", L"<<< is not supported."},
      {L"2>><3", "2", L">>< is not supported."},
      {std::wstring(18, L'<'), "", L"<<<<<<<<<<<<<<<... is not supported."},
      {L"1<< <2", "1 <", L"< is not supported."},
      {L"#", "", L"# is not supported."},
      {L"2=", "2", L"= is not supported."},
      {L"1\t", "1", L"\t is not supported."},
      {L"1\n", "1", L"\n is not supported."},
      {L"\u00e4\u00f6", "", L"\u00e4 is not supported."},
      {L"\u03c0", "", L"\u03c0 is not supported."},
      {L"\u2212\u0035", "", L"\u2212 is not supported."},
      {L"\uff15", "", L"\uff15 is not supported."},
      {L"1,5", "1", L", is not supported."},
      {std::wstring(L"1\0", 2), "1", std::wstring(L"\0 is not supported.", 19)},
      {L"xyz", "", L"xyz is not supported."},
      {L"x", "", L"x is not supported."},
      {L"e", "", L"e is not supported."},
      {L"e+1", "", L"e is not supported."},
      {L"pix", "", L"pix is not supported."},
      {L"sinx", "", L"sinx is not supported."},
      {L"pc", "", L"pc is not supported."},
      {L"5and3", "5", L"and is not supported."},
      {L"SIN(1)", "", L"S is not supported."},
      {L"averyveryverylongword", "", L"averyveryverylo... is not supported."},
      {L"sin", "F41", L"(sin) needs an argument."},
      {L"2*frac", "2 * F56", L"(frac) needs an argument."},
  };
  for (const TokenCase& c : cases) ExpectTokens(ExpressionDialect(BaseType::Dec), c);
}

TEST(Tokenizer, BaseRecords) {
  const TokenCase cases[] = {
      {L"a and f", "10 a 15"},
      {L"5and3", "5 a 3"},
      {L"1 or 2 xor 3 xnor not 4", "1 o 2 x 3 y n 4"},
      {L"(1+2)-3*4/5<<6>>7", "( 1 + 2 ) - 3 * 4 / 5 < 6 > 7"},
      {L"1 and", "1 a"},
      {L"fand", "", L"fand is not supported."},
      {L"5fand3", "5", L"fand is not supported."},
      {L"sin", "", L"sin is not supported."},
      {L"5xorn", "5", L"xorn is not supported."},
      {L"pi", "", L"pi is not supported."},
      {L"5p2", "5", L"p is not supported."},
      {L"5c2", "1474"},
      {L"5^2", "5", L"^ is not supported."},
      {L"5!", "5", L"! is not supported."},
      {L"5%2", "5", L"% is not supported."},
      {L"5.2", "5", L". is not supported."},
      {L"5<2", "5", L"< is not supported."},
      {L"123456789", "", L"Out of range(HEX MODE)"},
  };
  for (const TokenCase& c : cases) ExpectTokens(ExpressionDialect(BaseType::Hex), c);
}

TEST(Tokenizer, FieldsOfARecord) {
  struct FieldCase {
    const wchar_t* text;
    Token token;
  };
  const FieldCase cases[] = {
      {L"12", {.isOperand = 1, .value = 12.0}},
      {L"pi", {.isOperand = 1, .value = 3.141592653589793}},
      {L"+", {.op = '+', .kind = 10}},
      {L"!", {.op = '!', .kind = 10}},
      {L"<<", {.op = '<', .kind = 10}},
      {L">>", {.op = '>', .kind = 10}},
      {L"p", {.op = 'p', .kind = 10}},
      {L"c", {.op = 'c', .kind = 10}},
      {L"(", {.op = '(', .kind = 50}},
      {L")", {.op = ')', .kind = 50}},
      {L"tanh ", {.op = 'F', .funcCode = 52, .kind = 40}},
  };
  for (const FieldCase& c : cases) {
    CalcEngine list;
    list.TokenizeDecimal(c.text);
    ASSERT_EQ(list.tokenCount, 1);
    const Token& token = list.tokens[0];
    EXPECT_EQ(token.op, c.token.op);
    EXPECT_EQ(token.isOperand, c.token.isOperand);
    EXPECT_EQ(token.funcCode, c.token.funcCode);
    EXPECT_EQ(token.kind, c.token.kind);
    EXPECT_EQ(token.value, c.token.value);
  }
}

/// `count` records: an odd number of terms and signs, or one more sign in front.
std::wstring OfRecords(int count) {
  std::wstring text = count % 2 == 0 ? L"-1" : L"1";
  for (int i = (count - 1) / 2; i > 0; --i) text += L"+1";
  return text;
}

TEST(Tokenizer, Capacity) {
  const std::wstring full = L"number exceeded length limit.";
  struct CapacityCase {
    std::wstring text;
    int count;
    std::wstring error = {};
  };
  const CapacityCase cases[] = {
      {OfRecords(149), 149},
      {OfRecords(150), 150},
      {OfRecords(151), 151},
      {OfRecords(152), 151, full},
      {OfRecords(151) + L" ", 151, full},
      {OfRecords(151) + L"#", 151, full},
      {OfRecords(150) + L"   ", 150},
      {OfRecords(150) + L" 1", 151},
      {L"    " + OfRecords(151), 151},
      {OfRecords(150) + L"sin", 151, L"(sin) needs an argument."},
      {std::wstring(151, L'('), 151},
      {std::wstring(1'000'000, L'('), 151, full},
      {std::wstring(1'000'000, L' '), 0},
      {std::wstring(1'000'000, L'x'), 0, L"xxxxxxxxxxxxxxx... is not supported."},
      {std::wstring(1'000'000, L'<'), 0, L"<<<<<<<<<<<<<<<... is not supported."},
  };
  for (const CapacityCase& c : cases) {
    CalcEngine list;
    list.TokenizeDecimal(c.text);
    EXPECT_EQ(list.tokenCount, c.count) << c.text.size();
    EXPECT_EQ(list.errorText, c.error) << c.text.size();
    EXPECT_EQ(list.tokens[151].op, 0);
    EXPECT_EQ(list.tokens[151].isOperand, 0);
  }
}

TEST(Tokenizer, CapacityInEveryBase) {
  for (const BaseType base : {BaseType::Hex, BaseType::Bin, BaseType::Oct}) {
    CalcEngine list;
    Tokenize(OfRecords(151), ExpressionDialect(base), list);
    EXPECT_EQ(list.errorText, L"");
    CalcEngine full;
    Tokenize(OfRecords(152), ExpressionDialect(base), full);
    EXPECT_EQ(full.errorText, L"number exceeded length limit.");
  }
}

}  // namespace
}  // namespace vexa

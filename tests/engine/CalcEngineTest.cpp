#include "engine/CalcEngine.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "display/NumberPatterns.h"
#include "engine/ExprParser.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

constexpr BaseType kDec = BaseType::Dec;
constexpr BaseType kHex = BaseType::Hex;
constexpr BaseType kBin = BaseType::Bin;
constexpr BaseType kOct = BaseType::Oct;

const std::wstring kOutOfRange = L"Out of range(overflow or underflow)";
const std::wstring kUnmatched = L"Not matched '(' and ')'.";
const std::wstring kExpressionError = L"Expression error.";

CalcEngine Evaluated(const std::wstring& expression, BaseType base = kDec,
                     AngleType angle = AngleType::Degrees) {
  CalcEngine engine;
  engine.baseMode = base;
  engine.angleMode = angle;
  engine.EvaluateExpression(expression);
  return engine;
}

void ExpectValue(const CalcEngine& engine, double value, const std::wstring& expression) {
  EXPECT_EQ(engine.errorText, L"") << Narrow(expression);
  EXPECT_EQ(engine.errorFlag, 0) << Narrow(expression);
  EXPECT_DOUBLE_EQ(engine.result, value) << Narrow(expression);
}

void ExpectError(const CalcEngine& engine, const std::wstring& error,
                 const std::wstring& expression) {
  EXPECT_EQ(engine.errorText, error) << Narrow(expression);
  EXPECT_EQ(engine.errorFlag, 1) << Narrow(expression);
  EXPECT_EQ(engine.result, 0.0) << Narrow(expression);
}

struct ValueCase {
  std::wstring expression;
  double value;
};

TEST(CalcEngine, DecimalValues) {
  const ValueCase cases[] = {
      {L"2+3*4", 14},
      {L"2^3^2", 64},
      {L"-2^2", 4},
      {L"2*-3", -6},
      {L"2^-1", 0.5},
      {L"--5", 5},
      {L"+-+5", -5},
      {L"-(-5)", 5},
      {L"5-2*-3", -1},
      {L"2--3", -1},
      {L"-2*-3", 6},
      {L"-1-2", -3},
      {L"2^2-1", 3},
      {L"3!-1", 5},
      {L"8/2/2", 2},
      {L"8-2-2", 4},
      {L"7%3", 1},
      {L"7%3*2", 2},
      {L"-7%3", -1},
      {L"1<<40", 0},
      {L"1<<3+1", 9},
      {L"8>>1", 4},
      {L"5!", 120},
      {L"0!", 1},
      {L"149!/149!", 1},
      {L"3!^2", 36},
      {L"(1+2)!", 6},
      {L"5c2", 10},
      {L"5p2", 20},
      {L"5c0", 1},
      {L"0c0", 1},
      {L"5 c 2 p 1", 10},
      {L"5C2", 10},
      {L"2+5c2*2", 22},
      {L"pi", 3.141592653589793},
      {L"PI", 3.141592653589793},
      {L"Pi*2", 6.283185307179586},
      {L"1E5", 1e5},
      {L"1e-3", 0.001},
      {L"5e", 5},
      {L"1e+", 1},
      {L".5", 0.5},
      {L".", 0},
      {L"111111111111111111111111111111", 111111111111111111111111111111.0},
      {L"  1 + 2  ", 3},
      {L"((((5))))", 5},
      {L"(1+2)*(3+4)", 21},
      {L"sin 30", 0.5},
      {L"SIN(30)", 0.5},
      {L"sin(30)+1", 1.5},
      {L"sin 30+1", 1.5},
      {L"sin -30", -0.5},
      {L"2*sin 30", 1},
      {L"sin 30*2", 1},
      {L"sin 5!", 0.8660254037844387},
      {L"sin 3^2", 0.15643446504023087},
      {L"sqrt abs -16", 4},
      {L"sin cos 90", 0},
      {L"sin(cos(90))", 0},
      {L"abs(-3)^2", 9},
      {L"(sin)+30", 0.5},
      {L"cos 90", 0},
      {L"cos -90", 6.123233995736766e-17},
      {L"frac 2.75+int 3.9", 3.75},
      {L"ln exp 1", 1},
      {L"int -2.5", -2},
      {L"1>>256", 1},
      {L"2.9<<1.9", 4},
  };
  for (const ValueCase& c : cases) {
    ExpectValue(Evaluated(c.expression), c.value, c.expression);
  }
}

struct ErrorCase {
  std::wstring expression;
  std::wstring error;
};

TEST(CalcEngine, DecimalErrors) {
  const std::wstring division = L"Division exceeded calculation limit.";
  const ErrorCase cases[] = {
      {L"", L"Expression is null."},
      {L"     ", kExpressionError},
      {L"()", kExpressionError},
      {L"1.2.3", kExpressionError},
      {L"1e2e3", kExpressionError},
      {L"1e2.5", kExpressionError},
      {L"1111111111111111111111111111111", L"number exceeded length limit."},
      {L"2<3", L"< is not supported."},
      {L"2<>3", L"<> is not supported."},
      {L"2=2", L"= is not supported."},
      {L"xyz", L"xyz is not supported."},
      {L"sinx", L"sinx is not supported."},
      {L"2and3", L"and is not supported."},
      {L"sin", L"(sin) needs an argument."},
      {L"1+SIN", L"(sin) needs an argument."},
      {L"sin ", L"(sin) needs an argument."},
      {L"1+(sin)", L"(sin) needs an argument."},
      {L"(1+2", kUnmatched},
      {L"1+2)", kUnmatched},
      {L"(1+", kUnmatched},
      {L")1(", kExpressionError},
      {L"(5)+(3", kUnmatched},
      {L"(5))+(3", kExpressionError},
      {L"5)+(3", kExpressionError},
      {L"!", kExpressionError},
      {L"p", kExpressionError},
      {L"1+", kExpressionError},
      {L"*1", kExpressionError},
      {L"2 3", kExpressionError},
      {L"2pi", kExpressionError},
      {L"2(3)", kExpressionError},
      {L"(2)(3)", kExpressionError},
      {L"(2)3", kExpressionError},
      {L"2sin 30", kExpressionError},
      {L"3!!", kExpressionError},
      {L"1+/2", kExpressionError},
      {L"2*/3", division},
      {L"1/0", division},
      {L"1/(2-2)", division},
      {L"1/-0", division},
      {L"0/0", division},
      {L"7%0", L"Remainder exceeded calculation limit."},
      {L"8>>0", L">> exceeded calculation limit."},
      {L"150!", kOutOfRange},
      {L"1e300!", kOutOfRange},
      {L"150.5!", kOutOfRange},
      {L"2.5!", L"! is not supported non-integer."},
      {L"-3!", L"! is not supported non-integer."},
      {L"2c5", L"Combination exceeded calculation limit."},
      {L"2p5", L"Permutation exceeded calculation limit."},
      {L"-1c-2", L"Combination exceeded calculation limit."},
      {L"5c-2", L"Combination exceeded calculation limit."},
      {L"5.5c2", L"Combi.. is not supported non-integer."},
      {L"5c2.5", L"Combi.. is not supported non-integer."},
      {L"5.5p2", L"Permu.. is not supported non-integer."},
      {L"1e10c2", L"Combi.. is not supported non-integer."},
      {L"200c3", kOutOfRange},
      {L"2147483647c1", kOutOfRange},
      {L"2147483647p2147483647", kOutOfRange},
      {L"tan 90", L"tan exceeded calculation limit."},
      {L"tan -90", L"tan exceeded calculation limit."},
      {L"tan(270)", L"tan exceeded calculation limit."},
      {L"asin 2", L"asin exceeded calculation limit."},
      {L"acos -1.5", L"acos exceeded calculation limit."},
      {L"log 0", L"log exceeded calculation limit."},
      {L"ln -1", L"ln exceeded calculation limit."},
      {L"sqrt 0", L"sqrt exceeded calculation limit."},
      {L"sqrt -4", L"sqrt exceeded calculation limit."},
      {L"1e999", kOutOfRange},
      {L"1e999+1", kOutOfRange},
      {L"1e999*0", kOutOfRange},
      {L"sin 1e999", kOutOfRange},
      {L".5^1e999", kOutOfRange},
      {L"1e999^0", kOutOfRange},
      {L"10^400", kOutOfRange},
      {L"10^400^2", kOutOfRange},
      {L"10^400+1", kOutOfRange},
      {L"exp 1000", kOutOfRange},
      {L"(0-8)^.5", kOutOfRange},
      {L"1e308*10", kOutOfRange},
  };
  for (const ErrorCase& c : cases) ExpectError(Evaluated(c.expression), c.error, c.expression);
}

TEST(CalcEngine, OnlyTheLastPowersOperandsAreTested) {
  // An overflow in an earlier power may still come down again.
  ExpectValue(Evaluated(L"10^400^-1^2"), 0.0, L"10^400^-1^2");
  ExpectError(Evaluated(L"10^400^-1"), kOutOfRange, L"10^400^-1");
}

TEST(CalcEngine, Radians) {
  const ValueCase cases[] = {
      {L"sin pi", 0},
      {L"sin(pi/2)", 1},
      {L"cos(pi/2)", 0},
      {L"tan pi", 0},
      {L"asin 1", 1.5707963267948966},
      {L"acos 0", 1.5707963267948966},
      {L"atan 1", 0.7853981633974483},
      {L"sinh 1", 1.1752011936438014},
  };
  for (const ValueCase& c : cases) {
    ExpectValue(Evaluated(c.expression, kDec, AngleType::Radians), c.value, c.expression);
  }
  ExpectError(Evaluated(L"tan(pi/2)", kDec, AngleType::Radians), L"tan exceeded calculation limit.",
              L"tan(pi/2)");
}

TEST(CalcEngine, FirstErrorWins) {
  const ErrorCase cases[] = {
      // Tokens before syntax, syntax before values, and from left to right.
      {L"(1/0 #", L"# is not supported."},
      {L"1..2 #", kExpressionError},
      {L"# 1..2", L"# is not supported."},
      {L"1/0+", kExpressionError},
      {L"(1/0", kUnmatched},
      {L"1/0+7%0", L"Division exceeded calculation limit."},
      {L"7%0+1/0", L"Remainder exceeded calculation limit."},
      {L"1/0+2.5!", L"! is not supported non-integer."},
      {L"(1/0)+2.5!", L"Division exceeded calculation limit."},
      {L"1/0 2", L"Division exceeded calculation limit."},
      {L"sqrt 0+sin", L"(sin) needs an argument."},
  };
  for (const ErrorCase& c : cases) ExpectError(Evaluated(c.expression), c.error, c.expression);
}

struct BaseCase {
  BaseType base;
  std::wstring expression;
  double value;
};

TEST(CalcEngine, BaseValues) {
  const BaseCase cases[] = {
      {kBin, std::wstring(32, L'1'), 4294967295.0},
      {kHex, L"ffffffff", 4294967295.0},
      {kHex, L"FFFFFFFF", 4294967295.0},
      {kOct, L"37777777777", 4294967295.0},
      {kHex, L"a and f", 10},
      {kHex, L"A AND F", 10},
      {kHex, L"5and3", 1},
      {kHex, L"c or a", 14},
      {kHex, L"c xor a", 6},
      {kHex, L"c xnor a", -7},
      {kHex, L"ffffffff and f", 15},
      {kHex, L"ffffffff or 0", -1},
      {kHex, L"not 5", -6},
      {kHex, L"not ffffffff", 0},
      {kHex, L"not 0", -1},
      {kHex, L"NOT(5)", -6},
      {kHex, L"not(not 5)", 5},
      {kHex, L"not(1+2)", -4},
      {kHex, L"-not 5", 6},
      {kHex, L"not 5*2", -12},
      {kHex, L"2*not 5", -12},
      {kHex, L"f and not 5", 10},
      {kHex, L"-5", -5},
      {kHex, L"3*-5", -15},
      {kHex, L"3+-5", -2},
      {kHex, L"--5", 5},
      {kHex, L"-5 and f", 11},
      {kHex, L"(-5)and f", 11},
      {kHex, L"10+10", 32},
      {kHex, L"10-11", -1},
      {kHex, L"10*10", 256},
      {kHex, L"7/2", 3.5},
      {kHex, L"7/2 and 7", 3},
      {kHex, L"1<<1f", -2147483648.0},
      {kHex, L"1<<20", 0},
      {kHex, L"80000000>>1f", -1},
      {kHex, L"80000000>>ff", -1},
      {kHex, L"10>>4", 1},
      {kHex, L"1<<2+1", 5},
      {kHex, L"1+1 and 1", 0},
      {kHex, L"1 or 2 and 0", 0},
      {kHex, L"3-1 or 4", 6},
      {kHex, L"(1 or 2)*4", 12},
      {kBin, L"101+11", 8},
      {kBin, L"110 xor 011", 5},
      {kOct, L"17 or 20", 31},
      {kOct, L"7/2", 3.5},
      {kBin, L"111/10", 3.5},
      {kHex, L"5c2", 1474},
      {kHex, L"e", 14},
  };
  for (const BaseCase& c : cases) {
    ExpectValue(Evaluated(c.expression, c.base), c.value, c.expression);
  }
}

TEST(CalcEngine, BaseErrors) {
  struct BaseErrorCase {
    BaseType base;
    std::wstring expression;
    std::wstring error;
  };
  const BaseErrorCase cases[] = {
      {kBin, std::wstring(33, L'1'), L"Out of range(BIN MODE)"},
      {kHex, L"123456789", L"Out of range(HEX MODE)"},
      {kOct, std::wstring(12, L'1'), L"Out of range(OCT MODE)"},
      {kHex, L"", L"Expression is null."},
      {kHex, L"  ", kExpressionError},
      {kBin, L"2", L"2 is not supported."},
      {kOct, L"8", L"8 is not supported."},
      {kBin, L"a", L"a is not supported."},
      {kHex, L"g", L"g is not supported."},
      {kHex, L"fand3", L"fand is not supported."},
      {kHex, L"sin(5)", L"sin is not supported."},
      {kHex, L"2^3", L"^ is not supported."},
      {kHex, L"5!", L"! is not supported."},
      {kHex, L"5%2", L"% is not supported."},
      {kHex, L"1.5", L". is not supported."},
      {kHex, L"pi", L"pi is not supported."},
      {kHex, L"5p2", L"p is not supported."},
      {kHex, L"1<2", L"< is not supported."},
      {kHex, L"1<>2", L"<> is not supported."},
      {kHex, L"(5", kUnmatched},
      {kHex, L"5)", kUnmatched},
      {kHex, L"5)+(3", kExpressionError},
      {kHex, L"5 and", kExpressionError},
      {kHex, L"and 5", kExpressionError},
      {kHex, L"not", kExpressionError},
      {kHex, L"5 not 3", kExpressionError},
      {kHex, L"not not 5", kExpressionError},
      {kHex, L"not -5", kExpressionError},
      {kHex, L"5 and -3", kExpressionError},
      {kHex, L"5*/3", kExpressionError},
      {kHex, L"5 3", kExpressionError},
      {kHex, L"5(3)", kExpressionError},
      {kHex, L"()", kExpressionError},
      {kHex, L"1/0", L"Division exceeded calculation limit."},
      {kHex, L"8>>0", L">> exceeded calculation limit."},
  };
  for (const BaseErrorCase& c : cases) {
    ExpectError(Evaluated(c.expression, c.base), c.error, c.expression);
  }
}

TEST(CalcEngine, ForeignBaseReadsDecimalAndReducesAsInteger) {
  for (const int base : {0, 5, -1, 2147483647}) {
    ExpectValue(Evaluated(L"1.5+2*4", static_cast<BaseType>(base)), 9.5, L"1.5+2*4");
    // Powers are no operators there.
    ExpectError(Evaluated(L"2^3", static_cast<BaseType>(base)), kExpressionError, L"2^3");
  }
}

std::wstring Ones(int count) {
  std::wstring text = count % 2 == 0 ? L"-1" : L"1";
  for (int i = (count - 1) / 2; i > 0; --i) text += L"+1";
  return text;
}

TEST(CalcEngine, Capacity) {
  const std::wstring full = L"number exceeded length limit.";
  ExpectValue(Evaluated(Ones(149)), 75.0, L"149");
  ExpectValue(Evaluated(Ones(150)), 73.0, L"150");
  ExpectValue(Evaluated(Ones(151)), 76.0, L"151");
  ExpectError(Evaluated(Ones(152)), full, L"152");
  ExpectError(Evaluated(Ones(151) + L" "), full, L"151 and a blank");
  ExpectValue(Evaluated(Ones(150) + L" "), 73.0, L"150 and a blank");
  for (const BaseType base : {kHex, kBin, kOct}) {
    ExpectValue(Evaluated(Ones(151), base), 76.0, L"151");
    ExpectError(Evaluated(Ones(152), base), full, L"152");
  }
  // The record that stands in for a missing operand is the array's last.
  ExpectValue(Evaluated(Ones(144) + L"+5-2*-3"), 70.0 + 5.0 - 6.0, L"missing operand");
}

TEST(CalcEngine, HostileTexts) {
  const ErrorCase cases[] = {
      {std::wstring(1'000'000, L'1'), L"number exceeded length limit."},
      {std::wstring(1'000'000, L'('), L"number exceeded length limit."},
      {std::wstring(1'000'000, L'-'), L"number exceeded length limit."},
      {std::wstring(1'000'000, L' '), kExpressionError},
      {std::wstring(1'000'000, L'A'), L"aaaaaaaaaaaaaaa... is not supported."},
      {std::wstring(1'000'000, L'<'), L"<<<<<<<<<<<<<<<... is not supported."},
      {std::wstring(75, L'(') + std::wstring(75, L')'), kExpressionError},
      {std::wstring(75, L'(') + L"1/0" + std::wstring(73, L')'), kUnmatched},
  };
  for (const ErrorCase& c : cases) ExpectError(Evaluated(c.expression), c.error, L"hostile");
  std::wstring functions;
  for (int i = 0; i < 149; ++i) functions += L"abs ";
  ExpectValue(Evaluated(functions + L"-5"), 5.0, L"149 functions and a sign");
  ExpectValue(Evaluated(std::wstring(73, L'(') + L"1+2" + std::wstring(73, L')')), 3.0, L"nested");
}

TEST(CalcEngine, SucceedsAfterAFailure) {
  CalcEngine engine;
  for (const wchar_t* failing : {L"1/0", L"(", L"", L"#", L"2+3 4", L"1e999"}) {
    engine.EvaluateExpression(failing);
    EXPECT_FALSE(engine.errorText.empty());
    engine.EvaluateExpression(L"2+3");
    ExpectValue(engine, 5.0, failing);
  }
}

TEST(CalcEngine, NewEngine) {
  const CalcEngine engine{};
  EXPECT_EQ(engine.baseMode, BaseType::Dec);
  EXPECT_EQ(engine.errorText, L"");
  EXPECT_EQ(engine.errorFlag, 0);
  EXPECT_EQ(engine.tokenCount, 0);
  EXPECT_GE(engine.tokens.size(), 152u);
  EXPECT_TRUE(std::has_virtual_destructor_v<CalcEngine>);
  EXPECT_TRUE(std::has_virtual_destructor_v<ExprParser>);
}

/// The records of `formula` with x replaced, as callers hand them over.
std::vector<Token> Substituted(const std::wstring& formula, double x) {
  ExprParser parser;
  parser.Validate(formula);
  EXPECT_EQ(parser.errorText, L"") << Narrow(formula);
  std::vector<Token> records(parser.tokens.begin(), parser.tokens.begin() + parser.tokenCount);
  for (Token& token : records) {
    if (token.op == 'x' && token.isOperand == 1) token = {.isOperand = 1, .value = x};
  }
  return records;
}

TEST(CalcEngine, LoadedTokens) {
  CalcEngine engine;
  const std::wstring formulas[] = {L"x^2-2*x+1", L"sin(x)*cos(x)", L"-x", L"(x+1)!", L"x*/3"};
  for (const std::wstring& formula : formulas) {
    for (const double x : {0.0, 1.0, 2.0, -1.5}) {
      engine.LoadTokens(Substituted(formula, x));
      engine.EvaluateTokens();
      std::wstring text = formula;
      for (std::size_t at = 0; (at = text.find(L'x')) != std::wstring::npos;) {
        text.replace(at, 1, L"(0+" + FixedText(x, 6) + L")");
      }
      // A bracket is the same value, except that it hides the operand from an implicit product.
      const CalcEngine expected = Evaluated(text);
      EXPECT_EQ(engine.errorText, expected.errorText) << Narrow(text);
      EXPECT_DOUBLE_EQ(engine.result, expected.result) << Narrow(text);
    }
  }
}

TEST(CalcEngine, TokensAreCheckedByTheDecimalRules) {
  CalcEngine engine;
  const Token number{.isOperand = 1, .value = 2.0};
  const Token plus{.op = '+', .kind = kOperatorKind};
  const Token open{.op = '(', .kind = kParenthesisKind};
  engine.LoadTokens(std::vector<Token>{number, plus});
  engine.EvaluateTokens();
  EXPECT_EQ(engine.errorText, kExpressionError);
  engine.LoadTokens(std::vector<Token>{open, number});
  engine.EvaluateTokens();
  EXPECT_EQ(engine.errorText, kUnmatched);
  engine.LoadTokens({});
  engine.EvaluateTokens();
  EXPECT_EQ(engine.errorText, kExpressionError);
  engine.LoadTokens(std::vector<Token>{number, plus, number});
  engine.EvaluateTokens();
  ExpectValue(engine, 4.0, L"2+2");
}

TEST(CalcEngine, LoadsAtMostItsCapacity) {
  CalcEngine engine;
  engine.LoadTokens(std::vector<Token>(1000, Token{.isOperand = 1, .value = 1.0}));
  EXPECT_EQ(engine.tokenCount, 151);
  EXPECT_EQ(engine.tokens[151].isOperand, 0);
  engine.EvaluateTokens();
  EXPECT_EQ(engine.errorText, kExpressionError);
}

TEST(CalcEngine, RecordsBehindTheOnesInUseNeverCount) {
  CalcEngine engine;
  for (Token& token : engine.tokens) token = {.isOperand = 1, .value = 100.0};
  engine.EvaluateExpression(L"5-2*-3");
  ExpectValue(engine, -1.0, L"5-2*-3");
  for (Token& token : engine.tokens) token = {.isOperand = 1, .value = 100.0};
  const auto records = Substituted(L"x-2*-3", 5.0);
  std::copy(records.begin(), records.end(), engine.tokens.begin());
  engine.tokenCount = static_cast<int>(records.size());
  engine.EvaluateTokens();
  ExpectValue(engine, -1.0, L"x-2*-3");
}

/// Texts of random marks: mostly refused, some accepted.
std::wstring RandomExpression(std::mt19937& random) {
  static const std::wstring pieces[] = {
      L"1", L"2.5", L"7",  L"30",  L"+",   L"-",    L"*",    L"/",     L"%",  L"^",  L"!", L"(",
      L")", L"<<",  L">>", L" c ", L" p ", L"sin ", L"cos(", L"sqrt ", L"ln", L"pi", L" "};
  std::wstring text;
  for (auto length = random() % 12; length > 0; --length) {
    text += pieces[random() % std::size(pieces)];
  }
  return text;
}

TEST(CalcEngine, TheSameBitsEveryTime) {
  std::mt19937 random(5);
  CalcEngine reused;
  int successes = 0;
  for (int i = 0; i < 20'000; ++i) {
    const std::wstring expression = RandomExpression(random);
    const CalcEngine fresh = Evaluated(expression);
    for (int run = 0; run < 2; ++run) {
      reused.EvaluateExpression(expression);
      ASSERT_EQ(std::bit_cast<std::uint64_t>(reused.result),
                std::bit_cast<std::uint64_t>(fresh.result))
          << Narrow(expression);
      ASSERT_EQ(reused.errorText, fresh.errorText) << Narrow(expression);
    }
    successes += fresh.errorText.empty();
    ASSERT_TRUE(std::isfinite(fresh.result));
    ASSERT_EQ(fresh.errorText.empty(), fresh.errorFlag == 0);
  }
  EXPECT_GT(successes, 200);
}

TEST(CalcEngine, VectorsTwiceWithOneEngine) {
  CalcEngine engine;
  for (const auto& row : test::ReadTable("eval.tsv")) {
    engine.baseMode = static_cast<BaseType>(test::Integer(row[0]));
    engine.angleMode = static_cast<AngleType>(test::Integer(row[1]));
    engine.EvaluateExpression(test::Wide(row[2]));
    const double first = engine.result;
    const std::wstring firstError = engine.errorText;
    engine.EvaluateExpression(test::Wide(row[2]));
    ASSERT_EQ(std::bit_cast<std::uint64_t>(engine.result), std::bit_cast<std::uint64_t>(first))
        << row[2];
    ASSERT_EQ(engine.errorText, firstError) << row[2];
  }
}

TEST(CalcEngine, ReplannedTokensGiveTheBitsOfTheText) {
  // The decimal records of a text, loaded after another text with other values.
  std::mt19937 random(6);
  CalcEngine planned;
  for (int i = 0; i < 5'000; ++i) {
    const std::wstring expression = RandomExpression(random);
    CalcEngine cut;
    cut.TokenizeDecimal(expression);
    if (cut.errorFlag == 1 || cut.tokenCount == 0) continue;
    const std::span records(cut.tokens.data(), static_cast<std::size_t>(cut.tokenCount));
    const CalcEngine expected = Evaluated(expression);
    for (int run = 0; run < 2; ++run) {
      planned.LoadTokens(records);
      planned.EvaluateTokens();
      ASSERT_EQ(planned.errorText, expected.errorText) << Narrow(expression);
      ASSERT_EQ(std::bit_cast<std::uint64_t>(planned.result),
                std::bit_cast<std::uint64_t>(expected.result))
          << Narrow(expression);
    }
  }
}

}  // namespace
}  // namespace vexa

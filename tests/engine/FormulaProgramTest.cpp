#include "engine/FormulaProgram.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::vector<Token> Parsed(const std::wstring& formula) {
  ExprParser parser;
  parser.Validate(formula);
  EXPECT_EQ(parser.errorText, L"") << Narrow(formula);
  return {parser.Records().begin(), parser.Records().end()};
}

std::uint64_t Bits(double value) {
  return std::bit_cast<std::uint64_t>(value);
}

/// The reference: the engine's reduction of the records with `x` in them.
CalcEngine Reduced(std::span<const Token> formula, double x, AngleType angle) {
  CalcEngine engine;
  engine.angleMode = angle;
  engine.LoadTokens(formula);
  for (Token& token : std::span(engine.tokens).first(formula.size())) {
    if (token.isOperand == 1 && token.op == 'x') token = {.isOperand = 1, .value = x};
  }
  engine.EvaluateTokens();
  return engine;
}

/// How often a comparison found values and errors.
struct Tally {
  int values = 0;
  int errors = 0;
};

/// The program gives what the reduction gives, at all `xs` at once and at the first alone.
void Compare(std::span<const Token> formula, std::span<const double> xs, AngleType angle,
             Tally& tally) {
  const FormulaProgram program(formula);
  FormulaValues together;
  FormulaValues alone;
  program.Evaluate(xs, angle, together);
  program.Evaluate(xs.first(1), angle, alone);
  ASSERT_EQ(together.values.size(), xs.size());
  for (std::size_t i = 0; i < xs.size(); ++i) {
    const CalcEngine expected = Reduced(formula, xs[i], angle);
    ASSERT_EQ(Bits(together.values[i]), Bits(expected.result)) << xs[i];
    ASSERT_EQ(together.Sentence(i), expected.errorText) << xs[i];
    ++(expected.errorText.empty() ? tally.values : tally.errors);
  }
  ASSERT_EQ(Bits(alone.values[0]), Bits(together.values[0]));
  ASSERT_EQ(alone.errors[0], together.errors[0]);
}

TEST(FormulaProgram, EveryStepInEveryOrder) {
  const std::wstring formulas[] = {
      L"x",
      L"-x",
      L"--x",
      L"x+x*x-x/x",
      L"x*x*x-2*x+1",
      L"x^3-2*x+sin(x)/3",
      L"(x+1)*(x-1)",
      L"((x))",
      L"2^x^x",
      L"x^x^x+1e308*x-(x<<31)",
      L"5-2*-x",
      L"x*/3",
      L"x!",
      L"(x+1)!*x!",
      L"x c 2+5 p x",
      L"x%3+(x>>1)",
      L"sin(x)*sin(x)+cos(x)*cos(x)",
      L"tan(x)+asin(x/100)+acos(x/100)+atan(x)",
      L"log(x)+ln(x)+sqrt(x)",
      L"exp(x)+sinh(x)+cosh(x)+tanh(x)",
      L"abs(x)+int(x)+frac(x)",
      L"1/(x-1)+1/(x-2)+1/(x+1)",
      L"sqrt(x)/(x-2)",
      L"(x-2)/sqrt(x)",
      L"x*0+5 c 2-3!",
      L"sin(cos(tan(x)))",
      L"((x+1)*(x+2)-(x+3)*(x+4))/((x+5)*(x+6)-(x+7)*(x+8))",
      L"pi*x-pi*x+pi",
      L"0*x-0*x",
  };
  const double xs[] = {0.0,   -0.0,      1.0,        2.0,         3.0,    5.0,    0.5,
                       -1.0,  -2.5,      30.0,       90.0,        180.0,  -90.0,  149.0,
                       150.0, 171.0,     1e9,        1e300,       -1e300, 5e-324, 2921.0,
                       1e-9,  kInfinity, -kInfinity, std::nan("")};
  Tally tally;
  for (const std::wstring& formula : formulas) {
    SCOPED_TRACE(Narrow(formula));
    for (const AngleType angle : {AngleType::Degrees, AngleType::Radians}) {
      ASSERT_NO_FATAL_FAILURE(Compare(Parsed(formula), xs, angle, tally));
    }
  }
  EXPECT_GT(tally.values, 500);
  EXPECT_GT(tally.errors, 300);
}

TEST(FormulaProgram, EachSampleKeepsItsFirstError) {
  const FormulaProgram program(Parsed(L"sqrt(x)+1/(x-2)+asin(x-4)*200!"));
  const double xs[] = {-1.0, 2.0, 9.0, 4.0, kInfinity};
  FormulaValues outcome;
  program.Evaluate(xs, AngleType::Radians, outcome);
  // Arguments come first, then the factorial, the division, the sum.
  EXPECT_EQ(outcome.Sentence(0), L"sqrt exceeded calculation limit.");
  EXPECT_EQ(outcome.Sentence(1), L"asin exceeded calculation limit.");
  EXPECT_EQ(outcome.Sentence(2), L"asin exceeded calculation limit.");
  EXPECT_EQ(outcome.Sentence(3), L"Out of range(overflow or underflow)");
  EXPECT_EQ(outcome.Sentence(4), L"Out of range(overflow or underflow)");
  for (const double value : outcome.values) EXPECT_EQ(Bits(value), Bits(0.0));
}

TEST(FormulaProgram, RecordsThatDoNotFitTogetherFailEverywhere) {
  const Token x{.op = 'x', .isOperand = 1};
  const Token open{.op = '(', .kind = kParenthesisKind};
  const Token close{.op = ')', .kind = kParenthesisKind};
  const Token plus{.op = '+', .kind = kOperatorKind};
  const Token divide{.op = '/', .kind = kOperatorKind};
  const Token number{.isOperand = 1, .value = 2.0};
  const Token function{.op = 'F', .funcCode = 41, .kind = kFunctionKind};
  const Token unknown{.op = 'F', .funcCode = 1, .kind = kFunctionKind};
  const std::vector<Token> formulas[] = {
      {},
      {open, x},
      {x, plus},
      {x, x},
      {open, close},
      {close, x, open},
      {number, divide, number, x},
      {x, divide, x, number},
      {plus, function},
      {unknown, x},
      {unknown},
      std::vector<Token>(1000, x),
      std::vector<Token>(151, number),
  };
  Tally tally;
  const double xs[] = {0.0, 1.0, kInfinity};
  for (const std::vector<Token>& formula : formulas) {
    SCOPED_TRACE(formula.size());
    const auto known = std::span(formula).first(std::min(formula.size(), std::size_t{151}));
    Compare(known, xs, AngleType::Degrees, tally);
  }
  EXPECT_EQ(tally.values, 0);
  FormulaValues outcome;
  FormulaProgram(std::vector<Token>(1000, x)).Evaluate(xs, AngleType::Degrees, outcome);
  EXPECT_EQ(outcome.Sentence(0), L"Expression error.");
  FormulaProgram().Evaluate(xs, AngleType::Degrees, outcome);
  EXPECT_EQ(outcome.Sentence(2), L"Expression error.");
}

TEST(FormulaProgram, AnyNumberOfSamples) {
  const std::vector<Token> formula = Parsed(L"x*x-3*x+1/x+sqrt(x-100)");
  const FormulaProgram program(formula);
  FormulaValues outcome;
  for (const std::size_t count : {1000u, 0u, 1u, 256u, 257u, 255u, 512u, 3u}) {
    std::vector<double> xs(count);
    for (std::size_t i = 0; i < count; ++i) xs[i] = static_cast<double>(i);
    program.Evaluate(xs, AngleType::Degrees, outcome);
    ASSERT_EQ(outcome.values.size(), count);
    ASSERT_EQ(outcome.errors.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
      const CalcEngine expected = Reduced(formula, xs[i], AngleType::Degrees);
      ASSERT_EQ(Bits(outcome.values[i]), Bits(expected.result)) << i;
      ASSERT_EQ(outcome.Sentence(i), expected.errorText) << i;
    }
  }
}

TEST(FormulaProgram, ProgramsShareTheirRoom) {
  FormulaValues outcome;
  const double xs[] = {1.0, 2.0};
  const FormulaProgram wide(Parsed(L"(x+1)*((x+2)*((x+3)*((x+4)*(x+5))))"));
  const FormulaProgram narrow(Parsed(L"3-x"));
  for (int turn = 0; turn < 2; ++turn) {
    wide.Evaluate(xs, AngleType::Degrees, outcome);
    EXPECT_EQ(outcome.values, (std::vector<double>{720.0, 2520.0}));
    narrow.Evaluate(xs, AngleType::Degrees, outcome);
    EXPECT_EQ(outcome.values, (std::vector<double>{2.0, 1.0}));
  }
}

TEST(FormulaProgram, TheLongestFormulasFit) {
  const auto repeated = [](std::wstring text, const std::wstring& piece, int times) {
    for (int i = 0; i < times; ++i) text += piece + std::to_wstring(i);
    return text;
  };
  std::wstring nested = L"x";
  for (int i = 0; i < 37; ++i) nested = std::to_wstring(i) + L"-(" + nested + L")";
  const std::wstring formulas[] = {repeated(L"x", L"+", 75), repeated(L"x", L"-x^", 30), nested};
  const double xs[] = {0.5, 1.0, -2.0, 1e10};
  Tally tally;
  for (const std::wstring& formula : formulas) {
    ASSERT_NO_FATAL_FAILURE(Compare(Parsed(formula), xs, AngleType::Radians, tally));
  }
  EXPECT_EQ(tally.errors, 0);
}

/// Random records: formulas of the grammar, some of them with a record changed.
class RandomFormula {
 public:
  std::vector<Token> Next() {
    formula.clear();
    Sum(static_cast<int>(random() % 4));
    if (random() % 4 == 0) formula[random() % formula.size()] = AnyRecord();
    if (random() % 16 == 0) formula.erase(formula.begin() + Below(formula.size()));
    if (formula.size() > std::size_t{kMaxTokens + 1}) formula.resize(kMaxTokens + 1);
    return formula;
  }

  double Number() {
    switch (random() % 8) {
      case 0:
        return std::bit_cast<double>(random());
      case 1:
        return kSpecial[random() % std::size(kSpecial)];
      case 2:
        return static_cast<double>(random() % 720) * 90.0 - 32400.0;
      case 3:
      case 4:
        return static_cast<double>(random() % 21) - 10.0;
      default:
        return static_cast<double>(random() % 20'001) / 1000.0 - 10.0;
    }
  }

  std::mt19937_64 random{7};

 private:
  static constexpr double kSpecial[] = {0.0,    -0.0,   kInfinity, -kInfinity, 1e308,
                                        -1e308, 5e-324, 149.0,     150.0,      4294967296.0};

  std::ptrdiff_t Below(std::size_t size) { return static_cast<std::ptrdiff_t>(random() % size); }
  void Append(char op, TokenKind kind) {
    formula.push_back({.op = static_cast<signed char>(op), .kind = kind});
  }
  Token AnyRecord() {
    constexpr std::string_view kAny = "+-*/%^!cp<>()x";
    const char op = kAny[random() % kAny.size()];
    if (op == 'x') return {.isOperand = 1, .value = Number()};
    return {.op = static_cast<signed char>(op),
            .kind = op == '(' || op == ')' ? kParenthesisKind : kOperatorKind};
  }

  void Sum(int depth) {
    const auto terms = 1 + random() % 3;
    for (std::uint64_t i = 0; i < terms; ++i) {
      constexpr std::string_view kOperators = "++--**//%^<>cp";
      if (i > 0) Append(kOperators[random() % kOperators.size()], kOperatorKind);
      if (random() % 8 == 0) Append(random() % 4 == 0 ? '+' : '-', kOperatorKind);
      Term(depth);
      if (random() % 16 == 0) Append('!', kOperatorKind);
    }
  }
  void Term(int depth) {
    if (depth > 0 && random() % 2 == 0) {
      if (random() % 2 == 0) {
        const Keyword& function = kKeywords[random() % kKeywords.size()];
        formula.push_back({.op = 'F', .funcCode = function.code, .kind = kFunctionKind});
      }
      Append('(', kParenthesisKind);
      Sum(depth - 1);
      return Append(')', kParenthesisKind);
    }
    if (random() % 3 != 0) return formula.push_back({.op = 'x', .isOperand = 1});
    formula.push_back({.isOperand = 1, .value = Number()});
  }

  std::vector<Token> formula;
};

TEST(FormulaProgram, RandomFormulasGiveWhatTheReductionGives) {
  RandomFormula formulas;
  Tally tally;
  for (int i = 0; i < 200'000; ++i) {
    const std::vector<Token> formula = formulas.Next();
    const double xs[] = {formulas.Number(), formulas.Number(), formulas.Number()};
    const AngleType angle = i % 2 == 0 ? AngleType::Degrees : AngleType::Radians;
    ASSERT_NO_FATAL_FAILURE(Compare(formula, xs, angle, tally)) << "formula " << i;
  }
  // Both outcomes in numbers that mean something.
  EXPECT_GT(tally.values, 150'000);
  EXPECT_GT(tally.errors, 150'000);
}

}  // namespace
}  // namespace vexa

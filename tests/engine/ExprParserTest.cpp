#include "engine/ExprParser.h"

#include <gtest/gtest.h>

#include <string>

#include "engine/CalcEngine.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

const std::wstring kMissingX = L"Argument error : Missing variable X";
const std::wstring kMissingY = L"Argument error : Missing variable Y";
const std::wstring kMissingZ = L"Argument error : Missing variable Z";
const std::wstring kNoY = L"Can not use variable Y";
const std::wstring kNoZ = L"Can not use variable Z";
const std::wstring kExpressionError = L"Expression error.";
const std::wstring kUnmatched = L"Not matched '(' and ')'.";

struct FormulaCase {
  int type;
  std::wstring formula;
  std::wstring error = {};
};

TEST(ExprParser, Errors) {
  const FormulaCase cases[] = {
      {0, L"x^2"},
      {0, L"X^2"},
      {0, L"y+1", kNoY},
      {0, L"z+1", kNoZ},
      {0, L"x+y", kNoY},
      {0, L"x+z+y", kNoZ},
      {0, L"2+3", kMissingX},
      {0, L"2+", kMissingX},
      {0, L"(2", kMissingX},
      {0, L" ", kMissingX},
      {1, L"x+y"},
      {1, L"x+z", kNoZ},
      {1, L"x*2", kMissingY},
      {1, L"y*2", kMissingX},
      {1, L"2", kMissingX},
      {2, L"x+y+z"},
      {2, L"z*y/x"},
      {2, L"2", kMissingX},
      {2, L"x", kMissingY},
      {2, L"y", kMissingX},
      {2, L"x*y", kMissingZ},
      {2, L"y*z", kMissingX},
      {2, L"x*z", kMissingY},
      {0, L"", L"Expression is null."},
      {0, L"sin x", kExpressionError},
      {0, L"sin(x)"},
      {0, L"sin 2+x", kExpressionError},
      {0, L"sin(2)+x"},
      {0, L"-sin(-x)"},
      {0, L"2x", kExpressionError},
      {0, L"xx", L"xx is not supported."},
      {0, L"x x", kExpressionError},
      {0, L"x 2", kExpressionError},
      {1, L"xy", L"xy is not supported."},
      {1, L"x y", kExpressionError},
      {0, L"x(1)", kExpressionError},
      {0, L"(1)x", kExpressionError},
      {0, L"x sin(1)", kExpressionError},
      {0, L"(x", kUnmatched},
      {0, L"x)", kUnmatched},
      {0, L"x+sin", L"(sin) needs an argument."},
      {0, L"x+e", L"e is not supported."},
      {0, L"x+pi"},
      {0, L"pi*x"},
      {0, L"x p", kExpressionError},
      {0, L"5 c x"},
      {0, L"x!"},
      {0, L"x<<2"},
      {0, L"x<2", L"< is not supported."},
      {0, L"x and 2", L"and is not supported."},
      {0, L"x+1.2.3", kExpressionError},
      {0, L"x+1111111111222222222233333333331", L"number exceeded length limit."},
      {0, L"x=2", L"= is not supported."},
      {0, L"x+\u00e4", L"\u00e4 is not supported."},
  };
  for (const FormulaCase& c : cases) {
    ExprParser parser;
    parser.formulaType = static_cast<FormulaType>(c.type);
    parser.Validate(c.formula);
    EXPECT_EQ(parser.errorText, c.error) << c.type << ": " << Narrow(c.formula);
    EXPECT_EQ(parser.errorFlag, c.error.empty() ? 0 : 1);
  }
}

TEST(ExprParser, Records) {
  ExprParser parser;
  parser.formulaType = FormulaType::XYZ;
  parser.Validate(L"X+2*y-Z");
  ASSERT_EQ(parser.errorText, L"");
  ASSERT_EQ(parser.tokenCount, 7);
  const std::string marks{'x', '+', '\0', '*', 'y', '-', 'z'};
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const Token& token = parser.tokens[i];
    EXPECT_EQ(token.op, marks[i]) << i;
    EXPECT_EQ(token.isOperand, i % 2 == 0 ? 1 : 0) << i;
    EXPECT_EQ(token.kind, i % 2 == 0 ? 0 : 10) << i;
    EXPECT_EQ(token.value, i == 2 ? 2.0 : 0.0) << i;
  }
}

TEST(ExprParser, EachRunBeginsAnew) {
  ExprParser parser;
  parser.Validate(L"x+1+2+3+");
  EXPECT_EQ(parser.errorText, kExpressionError);
  parser.Validate(L"x");
  EXPECT_EQ(parser.errorText, L"");
  EXPECT_EQ(parser.errorFlag, 0);
  EXPECT_EQ(parser.tokenCount, 1);
  for (std::size_t i = 1; i < parser.tokens.size(); ++i) {
    EXPECT_EQ(parser.tokens[i].op, 0) << i;
    EXPECT_EQ(parser.tokens[i].isOperand, 0) << i;
  }
}

TEST(ExprParser, Capacity) {
  std::wstring formula = L"x";
  for (int i = 0; i < 75; ++i) formula += L"+1";
  ExprParser parser;
  parser.Validate(formula);
  EXPECT_EQ(parser.errorText, L"");
  EXPECT_EQ(parser.tokenCount, 151);
  parser.Validate(formula + L"+");
  EXPECT_EQ(parser.errorText, L"number exceeded length limit.");
  parser.Validate(std::wstring(1'000'000, L'x'));
  EXPECT_EQ(parser.errorText, L"xxxxxxxxxxxxxxx... is not supported.");
}

TEST(ExprParser, ForeignTypeAcceptsEveryVariableAndExpectsNone) {
  for (const int type : {3, 7, -1, 2147483647, -2147483647 - 1}) {
    ExprParser parser;
    parser.formulaType = static_cast<FormulaType>(type);
    for (const wchar_t* formula : {L"2+3", L"x+y+z"}) {
      parser.Validate(formula);
      EXPECT_EQ(parser.errorText, L"") << type;
    }
  }
}

}  // namespace
}  // namespace vexa

#include "engine/ExprParser.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/AsciiCase.h"
#include "engine/Dialects.h"
#include "engine/SyntaxRules.h"

namespace vexa {
namespace {

/// A variable, and the sentence for a formula that lacks it.
struct Variable {
  char name;
  std::wstring_view missing;
};

constexpr std::array<Variable, 3> kVariables{{
    {'x', L"Argument error : Missing variable X"},
    {'y', L"Argument error : Missing variable Y"},
    {'z', L"Argument error : Missing variable Z"},
}};

}  // namespace

void ExprParser::Validate(std::wstring_view formula) {
  Clear();
  if (formula.empty()) return ReportError(ErrorCode::NullExpression);
  Tokenize(ToLowerAscii(formula), FormulaDialect(formulaType), *this);
  if (errorFlag != 1) CheckVariables();
  if (errorFlag != 1) CheckSyntax(SyntaxRules::Formula, *this);
}

void ExprParser::CheckVariables() {
  const auto expected = static_cast<std::size_t>(formulaType) + 1;
  // A type outside the enum accepts every variable and expects none.
  if (expected > kVariables.size()) return;
  for (const Variable& variable : std::span(kVariables).first(expected)) {
    const bool used = std::any_of(tokens.begin(), tokens.begin() + tokenCount, [&](const Token& t) {
      return t.isOperand == 1 && t.op == variable.name;
    });
    if (!used) return ReportError(ErrorCode::Message, variable.missing);
  }
}

}  // namespace vexa

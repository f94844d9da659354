#include "plotter/XFormula.h"

#include <algorithm>

namespace vexa {

XFormula::XFormula(std::span<const Token> formula) {
  const auto known = formula.first(std::min(formula.size(), std::size_t{kMaxTokens + 1}));
  records.assign(known.begin(), known.end());
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i].isOperand != 1 || records[i].op != 'x') continue;
    records[i].op = 0;
    variables.push_back(i);
  }
}

void XFormula::Evaluate(double x, CalcEngine& engine) const {
  engine.LoadTokens(records);
  for (const std::size_t variable : variables) engine.tokens[variable].value = x;
  engine.EvaluateTokens();
}

}  // namespace vexa

#pragma once

#include "engine/TokenList.h"

namespace vexa {

/// Which neighbours the records of an expression may have.
enum class SyntaxRules {
  Decimal,  ///< expressions of numbers and functions
  Formula,  ///< the same with variables; functions need parentheses
  Base,     ///< expressions in an integer base
};

/// Checks that the parentheses match in number and that every record has neighbours that `rules`
/// allow; reports the first violation.
void CheckSyntax(SyntaxRules rules, TokenList& list);

}  // namespace vexa

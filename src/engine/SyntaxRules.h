#pragma once

#include <optional>
#include <span>

#include "engine/TokenList.h"

namespace vexa {

/// Which neighbours the records of an expression may have.
enum class SyntaxRules {
  Decimal,  ///< expressions of numbers and functions
  Formula,  ///< the same with variables; functions need parentheses
  Base,     ///< expressions in an integer base
};

/// The first violation of `rules` in `records`: parentheses that do not match in number, or a
/// record whose neighbours are not allowed; null: there is none. Of a record, its index is stored
/// in `place`, if given.
const EngineError* FindSyntaxError(SyntaxRules rules, std::span<const Token> records,
                                   std::optional<std::size_t>* place = nullptr);

/// Reports the first violation of `rules` in the list's records.
void CheckSyntax(SyntaxRules rules, TokenList& list);

}  // namespace vexa

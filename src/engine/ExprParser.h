#pragma once

#include <span>
#include <string_view>

#include "engine/Functions.h"
#include "engine/TokenList.h"

namespace vexa {

/// Which variables a formula has, and must use. With a value outside the enum it may use all three
/// and must use none.
enum class FormulaType : int { X = 0, XY = 1, XYZ = 2 };

/// Tokenizes and checks a formula with variables. Afterwards `errorText` is empty when the formula
/// is valid; `tokens` and `tokenCount` hold its records, variables as operands whose `op` is "x",
/// "y" or "z".
class ExprParser : public TokenList {
 public:
  /// Set before Validate.
  FormulaType formulaType = FormulaType::X;
  /// Function names and codes, the same for every parser object.
  static constexpr const std::span<const Keyword>& keywords = kKeywords;

  /// Tokenizes `formula` (any case), checks that it uses exactly the variables of `formulaType`,
  /// and checks its syntax. A function needs parentheses here.
  void Validate(std::wstring_view formula);

 private:
  /// Reports the first variable of the formula's type that the formula does not use.
  void CheckVariables();
};

}  // namespace vexa

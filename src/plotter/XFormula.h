#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "engine/CalcEngine.h"

namespace vexa {

/// A formula of X, made ready for being evaluated at many values of X.
class XFormula {
 public:
  /// `records`: a checked formula's records, with the variable X in them.
  explicit XFormula(std::span<const Token> records);

  /// Evaluates the formula at `x` in `engine`, in its angle mode: then `engine` holds the value or
  /// the error.
  void Evaluate(double x, CalcEngine& engine) const;

 private:
  /// The records with numbers in the places of X.
  std::vector<Token> records;
  std::vector<std::size_t> variables;
};

}  // namespace vexa

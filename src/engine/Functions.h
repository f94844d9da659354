#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "engine/Operation.h"

namespace vexa {

/// A function: its name as it is written in an expression (lower case), its code, what it does, and
/// the error where it has no argument. Trigonometric functions are exactly 0 at their zeros (the
/// cosine at its positive ones).
struct Keyword {
  std::wstring_view name;
  std::int32_t code;
  Operation operation;
  EngineError missingArgument;
};

/// Every function. The evaluator dispatches on the code, never on a place in here.
extern const std::span<const Keyword> kKeywords;

/// The function with this code; one without a name that refuses every argument when there is none.
const Keyword& FunctionOf(std::int32_t code);

}  // namespace vexa

#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/CalcModes.h"

namespace vexa::bench {

/// A way to fill an expression with one kind of token: `before` repeated, `middle`, `after`
/// repeated. Each repetition adds `tokens` tokens to those of the middle, which is one token.
struct ExpressionKind {
  const char* name;
  BaseType base;
  std::wstring_view before;
  std::wstring_view middle;
  std::wstring_view after;
  int tokens;
};

/// Every kind of token that the engine reduces, each alone and where it costs most.
std::span<const ExpressionKind> ExpressionKinds();

/// The longest expression of this kind with at most `tokens` tokens.
std::wstring Expression(const ExpressionKind& kind, int tokens);

/// An expression with `depth` parentheses inside each other.
std::wstring NestedParentheses(int depth);

}  // namespace vexa::bench

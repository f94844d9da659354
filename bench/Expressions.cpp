#include "Expressions.h"

namespace vexa::bench {
namespace {

constexpr BaseType kDec = BaseType::Dec;
constexpr BaseType kHex = BaseType::Hex;

constexpr ExpressionKind kKinds[] = {
    {"sums", kDec, L"", L"1", L"+1", 2},
    {"products", kDec, L"", L"1", L"*1", 2},
    {"quotients", kDec, L"", L"1", L"/1", 2},
    {"remainders", kDec, L"", L"1", L"%2", 2},
    {"shifts", kDec, L"", L"1", L"<<1", 2},
    {"powers", kDec, L"", L"1", L"^1", 2},
    {"combinations", kDec, L"", L"1", L"c1", 2},
    {"permutations", kDec, L"", L"1", L"p1", 2},
    {"factorials", kDec, L"(", L"1", L"!)", 3},
    {"large factorials", kDec, L"", L"1", L"+149!", 3},
    {"signs", kDec, L"-", L"1", L"", 1},
    {"functions", kDec, L"sin ", L"1", L"", 1},
    {"functions in parentheses", kDec, L"sin(", L"1", L")", 3},
    {"parentheses", kDec, L"(", L"1", L")", 2},
    {"parentheses side by side", kDec, L"", L"1", L"+(1)", 4},
    {"base-N words", kHex, L"", L"f", L" xor 1", 2},
    {"base-N complements", kHex, L"", L"f", L"+not 1", 3},
};

std::wstring Repeated(std::wstring_view text, int times) {
  std::wstring result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

}  // namespace

std::span<const ExpressionKind> ExpressionKinds() {
  return kKinds;
}

std::wstring Expression(const ExpressionKind& kind, int tokens) {
  const int times = (tokens - 1) / kind.tokens;
  return Repeated(kind.before, times).append(kind.middle).append(Repeated(kind.after, times));
}

std::wstring NestedParentheses(int depth) {
  return Repeated(L"2*(", depth).append(L"sin(30)").append(Repeated(L")", depth));
}

}  // namespace vexa::bench

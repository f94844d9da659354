#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vexa {

/// Codes of the functions. The evaluator dispatches on the code, never on a table position.
enum FunctionCode : std::int32_t {
  kSin = 41,
  kCos = 42,
  kTan = 43,
  kAsin = 44,
  kAcos = 45,
  kAtan = 46,
  kLog = 47,
  kLn = 48,
  kExp = 49,
  kSinh = 50,
  kCosh = 51,
  kTanh = 52,
  kSqrt = 53,
  kAbs = 54,
  kInt = 55,
  kFrac = 56,
};

/// A function's name as it is written in an expression (lower case), and its code.
struct Keyword {
  std::wstring_view name;
  std::int32_t code;
};

inline constexpr std::array<Keyword, 16> kKeywords{{
    {L"sin", kSin},
    {L"cos", kCos},
    {L"tan", kTan},
    {L"asin", kAsin},
    {L"acos", kAcos},
    {L"atan", kAtan},
    {L"sqrt", kSqrt},
    {L"int", kInt},
    {L"sinh", kSinh},
    {L"cosh", kCosh},
    {L"tanh", kTanh},
    {L"log", kLog},
    {L"ln", kLn},
    {L"exp", kExp},
    {L"abs", kAbs},
    {L"frac", kFrac},
}};

}  // namespace vexa

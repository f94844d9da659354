#include "engine/BinaryOperators.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "engine/ToInt32.h"

namespace vexa {
namespace {

constexpr int kIntegerBits = 32;

/// The number of places that a shift by `right` moves.
int ShiftCount(double right) {
  return ToInt32(right) & 255;
}

double ShiftedLeft(double left, double right) {
  const int count = ShiftCount(right);
  if (count >= kIntegerBits) return 0.0;
  const std::uint32_t bits = static_cast<std::uint32_t>(ToInt32(left)) << count;
  return static_cast<double>(static_cast<std::int32_t>(bits));
}

double ShiftedRight(double left, double right) {
  return static_cast<double>(ToInt32(left) >> std::min(ShiftCount(right), kIntegerBits - 1));
}

template <typename Value>
constexpr Operation Binary(Value value) {
  return MakeOperation(Operands::Finite, {}, value);
}

/// An operation that is not finite where an operand is not.
template <typename Value>
constexpr Operation Arithmetic(Value value) {
  return MakeOperation(Operands::FiniteBySpread, {}, value);
}

/// An operation that `name` calls and that refuses 0 on the right.
template <typename Value>
constexpr Operation RefusingZero(std::wstring_view name, Value value) {
  return MakeOperation(Operands::Finite, {EngineError{ErrorCode::LimitExceeded, name}}, value,
                       [](double, double right) { return right == 0.0; });
}

constexpr Operation kMultiply = Arithmetic([](double left, double right) { return left * right; });
constexpr Operation kDivide =
    RefusingZero(L"Division", [](double left, double right) { return left / right; });
constexpr Operation kRemainder =
    RefusingZero(L"Remainder", [](double left, double right) { return std::fmod(left, right); });
constexpr Operation kShiftLeft =
    Binary([](double left, double right) { return ShiftedLeft(left, right); });
// Shifting by zero is refused; meant.
constexpr Operation kShiftRight =
    RefusingZero(L">>", [](double left, double right) { return ShiftedRight(left, right); });
constexpr Operation kAdd = Arithmetic([](double left, double right) { return left + right; });
constexpr Operation kSubtract = Arithmetic([](double left, double right) { return left - right; });

/// An operation on the bits of the operands as 32-bit integers.
template <typename Bits>
constexpr Operation Bitwise(Bits) {
  return Binary([](double left, double right) {
    return static_cast<double>(Bits{}(ToInt32(left), ToInt32(right)));
  });
}

using Int = std::int32_t;
constexpr Operation kAnd = Bitwise([](Int left, Int right) { return left & right; });
constexpr Operation kOr = Bitwise([](Int left, Int right) { return left | right; });
constexpr Operation kXor = Bitwise([](Int left, Int right) { return left ^ right; });
constexpr Operation kXnor = Bitwise([](Int left, Int right) { return ~(left ^ right); });

constexpr OperatorPass MakePass(
    std::initializer_list<std::pair<char, const Operation*>> operations) {
  OperatorPass pass{};
  for (const auto& [op, operation] : operations) {
    pass.operations[static_cast<std::size_t>(op)] = operation;
    pass.operators |= OperatorBit(static_cast<signed char>(op));
  }
  return pass;
}

}  // namespace

constexpr OperatorPass kDecimalProducts = MakePass({{'*', &kMultiply},
                                                    {'/', &kDivide},
                                                    {'%', &kRemainder},
                                                    {'<', &kShiftLeft},
                                                    {'>', &kShiftRight}});
constexpr OperatorPass kDecimalSums = MakePass({{'+', &kAdd}, {'-', &kSubtract}});
constexpr OperatorPass kBaseProducts =
    MakePass({{'*', &kMultiply}, {'/', &kDivide}, {'<', &kShiftLeft}, {'>', &kShiftRight}});
constexpr OperatorPass kBaseSums = MakePass(
    {{'+', &kAdd}, {'-', &kSubtract}, {'a', &kAnd}, {'o', &kOr}, {'x', &kXor}, {'y', &kXnor}});

}  // namespace vexa

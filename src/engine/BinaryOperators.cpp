#include "engine/BinaryOperators.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <utility>

#include "engine/ToInt32.h"

namespace vexa {
namespace {

constexpr int kIntegerBits = 32;

/// The number of places that a shift by `right` moves.
int ShiftCount(double right) {
  return ToInt32(right) & 255;
}

BinaryOutcome Multiply(double left, double right) {
  return {left * right};
}
BinaryOutcome Divide(double left, double right) {
  if (right == 0.0) return {.exceeded = L"Division"};
  return {left / right};
}
BinaryOutcome Remainder(double left, double right) {
  if (right == 0.0) return {.exceeded = L"Remainder"};
  return {std::fmod(left, right)};
}
BinaryOutcome ShiftLeft(double left, double right) {
  const int count = ShiftCount(right);
  if (count >= kIntegerBits) return {0.0};
  const std::uint32_t bits = static_cast<std::uint32_t>(ToInt32(left)) << count;
  return {static_cast<double>(static_cast<std::int32_t>(bits))};
}
// Shifting by zero is refused; meant.
BinaryOutcome ShiftRight(double left, double right) {
  if (right == 0.0) return {.exceeded = L">>"};
  return {static_cast<double>(ToInt32(left) >> std::min(ShiftCount(right), kIntegerBits - 1))};
}
BinaryOutcome Add(double left, double right) {
  return {left + right};
}
BinaryOutcome Subtract(double left, double right) {
  return {left - right};
}
BinaryOutcome And(double left, double right) {
  return {static_cast<double>(ToInt32(left) & ToInt32(right))};
}
BinaryOutcome Or(double left, double right) {
  return {static_cast<double>(ToInt32(left) | ToInt32(right))};
}
BinaryOutcome Xor(double left, double right) {
  return {static_cast<double>(ToInt32(left) ^ ToInt32(right))};
}
BinaryOutcome Xnor(double left, double right) {
  return {static_cast<double>(~(ToInt32(left) ^ ToInt32(right)))};
}

constexpr OperatorPass MakePass(
    std::initializer_list<std::pair<char, BinaryOperation>> operations) {
  OperatorPass pass{};
  for (const auto& [op, operation] : operations) pass[static_cast<std::size_t>(op)] = operation;
  return pass;
}

}  // namespace

constexpr OperatorPass kDecimalProducts = MakePass(
    {{'*', Multiply}, {'/', Divide}, {'%', Remainder}, {'<', ShiftLeft}, {'>', ShiftRight}});
constexpr OperatorPass kDecimalSums = MakePass({{'+', Add}, {'-', Subtract}});
constexpr OperatorPass kBaseProducts =
    MakePass({{'*', Multiply}, {'/', Divide}, {'<', ShiftLeft}, {'>', ShiftRight}});
constexpr OperatorPass kBaseSums =
    MakePass({{'+', Add}, {'-', Subtract}, {'a', And}, {'o', Or}, {'x', Xor}, {'y', Xnor}});

}  // namespace vexa

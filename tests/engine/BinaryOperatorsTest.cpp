#include "engine/BinaryOperators.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "engine/ToInt32.h"

namespace vexa {
namespace {

struct BinaryOutcome {
  double value = 0.0;
  const EngineError* error = nullptr;
};

BinaryOutcome Outcome(const OperatorPass& pass, char op, double left, double right) {
  const Operation* const operation = pass.Find(static_cast<signed char>(op));
  EXPECT_NE(operation, nullptr) << op;
  if (!operation) return {};
  const EngineError* const error = operation->Run(left, right, AngleType::Degrees);
  return {left, error};
}

std::string OperatorsOf(const OperatorPass& pass) {
  std::string operators;
  for (std::size_t i = 0; i < pass.operations.size(); ++i) {
    if (!pass.operations[i]) continue;
    operators += static_cast<char>(i);
    EXPECT_NE(pass.operators & OperatorBit(static_cast<signed char>(i)), 0u);
  }
  return operators;
}

TEST(BinaryOperators, EachPassHasItsOwn) {
  EXPECT_EQ(OperatorsOf(kDecimalProducts), "%*/<>");
  EXPECT_EQ(OperatorsOf(kDecimalSums), "+-");
  EXPECT_EQ(OperatorsOf(kBaseProducts), "*/<>");
  EXPECT_EQ(OperatorsOf(kBaseSums), "+-aoxy");
}

struct ValueCase {
  char op;
  double left, right, value;
};

TEST(BinaryOperators, Products) {
  const ValueCase cases[] = {
      {'*', 3, -4, -12},
      {'*', 1e200, 1e200, std::numeric_limits<double>::infinity()},
      {'/', 7, 2, 3.5},
      {'/', 0, 5, 0},
      {'<', 1, 0, 1},
      {'<', 1, 31, -2147483648.0},
      {'<', 1, 32, 0},
      {'<', 1, 40, 0},
      {'<', 1, 255, 0},
      {'<', 1, 256, 1},
      {'<', 1, 257, 2},
      {'<', 1, -1, 0},
      {'<', 1, -255, 2},
      {'<', 3.9, 1.9, 6},
      {'<', -1, 4, -16},
      {'<', 4294967295.0, 4, -16},
      {'<', 1073741824.0, 1, -2147483648.0},
      {'<', 2147483649.0, 1, 2},
      {'>', 8, 1, 4},
      {'>', -8, 1, -4},
      {'>', -1, 31, -1},
      {'>', -1, 32, -1},
      {'>', 1, 32, 0},
      {'>', 2147483647.0, 200, 0},
      {'>', -2147483648.0, 31, -1},
      {'>', 8, 256, 8},
      {'>', 8.7, 0.5, 8},
      {'>', 8, -1, 0},
      {'>', -8, -1, -1},
      {'>', 4294967288.0, 1, -4},
  };
  for (const ValueCase& c : cases) {
    for (const OperatorPass* pass : {&kDecimalProducts, &kBaseProducts}) {
      const BinaryOutcome outcome = Outcome(*pass, c.op, c.left, c.right);
      EXPECT_EQ(outcome.error, nullptr) << c.op;
      EXPECT_EQ(outcome.value, c.value) << c.left << c.op << c.right;
    }
  }
}

TEST(BinaryOperators, Remainders) {
  const ValueCase cases[] = {
      {'%', 7, 3, 1}, {'%', -7, 3, -1}, {'%', 7, -3, 1}, {'%', 5.5, 2, 1.5}, {'%', 1, 1e300, 1},
  };
  for (const ValueCase& c : cases) {
    EXPECT_EQ(Outcome(kDecimalProducts, c.op, c.left, c.right).value, c.value) << c.left;
  }
}

TEST(BinaryOperators, Sums) {
  const ValueCase cases[] = {{'+', 1, 2, 3}, {'-', 1, 2, -1}, {'+', 0.1, 0.2, 0.30000000000000004}};
  for (const ValueCase& c : cases) {
    EXPECT_EQ(Outcome(kDecimalSums, c.op, c.left, c.right).value, c.value);
    EXPECT_EQ(Outcome(kBaseSums, c.op, c.left, c.right).value, c.value);
  }
}

TEST(BinaryOperators, Limits) {
  struct LimitCase {
    char op;
    std::wstring_view name;
  };
  const LimitCase cases[] = {{'/', L"Division"}, {'%', L"Remainder"}, {'>', L">>"}};
  for (const LimitCase& c : cases) {
    for (const double zero : {0.0, -0.0}) {
      const BinaryOutcome outcome = Outcome(kDecimalProducts, c.op, 7, zero);
      ASSERT_NE(outcome.error, nullptr) << c.op;
      EXPECT_EQ(outcome.error->code, ErrorCode::LimitExceeded);
      EXPECT_EQ(outcome.value, 7);
      EXPECT_EQ(outcome.error->argument, c.name);
    }
  }
  EXPECT_EQ(Outcome(kBaseProducts, '/', 1, 0).error->argument, L"Division");
  EXPECT_EQ(Outcome(kBaseProducts, '>', 1, 0).error->argument, L">>");
}

TEST(BinaryOperators, OperandsHaveToBeFinite) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const OperatorPass* pass : {&kDecimalProducts, &kDecimalSums, &kBaseProducts, &kBaseSums}) {
    for (const char op : OperatorsOf(*pass)) {
      for (const double bad : {kInfinity, -kInfinity, std::nan("")}) {
        EXPECT_EQ(Outcome(*pass, op, bad, 0.0).error, &kOutOfRange) << op;
        EXPECT_EQ(Outcome(*pass, op, 0.0, bad).error, &kOutOfRange) << op;
      }
    }
  }
}

TEST(BinaryOperators, WhatIsNotFiniteSpreads) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double numbers[] = {0.0,    -0.0,      1.0,        -2.5,        1e308,
                            5e-324, kInfinity, -kInfinity, std::nan("")};
  int spreading = 0;
  for (const OperatorPass* pass : {&kDecimalProducts, &kDecimalSums, &kBaseProducts, &kBaseSums}) {
    for (const Operation* operation : pass->operations) {
      if (!operation || operation->operands != Operands::FiniteBySpread) continue;
      ++spreading;
      for (const double left : numbers) {
        for (const double right : numbers) {
          if (std::isfinite(left) && std::isfinite(right)) continue;
          double result = left;
          EXPECT_EQ(operation->apply(*operation, result, right, AngleType::Degrees), nullptr);
          EXPECT_FALSE(std::isfinite(result)) << left << " " << right;
        }
      }
    }
  }
  EXPECT_EQ(spreading, 6);
}

TEST(BinaryOperators, BitwiseTruthTable) {
  // 12 and 10 hold all four pairs of bits.
  const ValueCase cases[] = {
      {'a', 12, 10, 8},          {'o', 12, 10, 14},
      {'x', 12, 10, 6},          {'y', 12, 10, -7},
      {'a', -1, 5.9, 5},         {'a', 4294967295.0, 4294967295.0, -1},
      {'o', 4294967296.0, 0, 0}, {'x', -1, 0, -1},
      {'y', 0, 0, -1},           {'o', -2147483648.0, 2147483647.0, -1},
  };
  for (const ValueCase& c : cases) {
    EXPECT_EQ(Outcome(kBaseSums, c.op, c.left, c.right).value, c.value) << c.op;
  }
}

TEST(BinaryOperators, BitwiseLaws) {
  std::mt19937 random(3);
  for (int i = 0; i < 10'000; ++i) {
    const auto a = static_cast<double>(random());
    const auto b = static_cast<double>(random());
    const double both = Outcome(kBaseSums, 'a', a, b).value;
    const double either = Outcome(kBaseSums, 'o', a, b).value;
    const double one = Outcome(kBaseSums, 'x', a, b).value;
    ASSERT_EQ(both + one, either);
    ASSERT_EQ(Outcome(kBaseSums, 'y', a, b).value, -1 - one);
    ASSERT_EQ(Outcome(kBaseSums, 'x', one, b).value, ToInt32(a));
  }
}

}  // namespace
}  // namespace vexa

#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/FormulaProgram.h"
#include "engine/Reduction.h"

namespace vexa {

/// Turns what the reduction of a formula's records does into a program.
class FormulaPlanner : private StepTaker {
 public:
  explicit FormulaPlanner(std::span<const Token> formula);

  FormulaProgram Program() const;

 private:
  /// X, a constant, or the result of an operation on earlier values.
  struct Value {
    const Operation* operation = nullptr;
    std::uint16_t left = 0;
    std::uint16_t right = 0;
    double constant = 0.0;

    bool operator==(const Value& other) const;
  };
  /// A value's number; X is 0.
  using Index = std::uint16_t;
  static constexpr Index kNone = 0xffff;

  bool Take(const ReductionStep& step) override;
  void Fail(const EngineError& error) override { failure = &error; }
  void Finish(int record) override { result = Held(static_cast<std::size_t>(record)); }

  /// The number of `value`, which is appended unless it is there already.
  Index Find(const Value& value);
  /// The value that a record holds.
  Index Held(std::size_t record);
  /// For each value the last one that is computed from it.
  std::vector<Index> LastUses() const;

  static bool IsTested(FormulaProgram::Column column, const FormulaProgram::Instruction& step);
  /// Leaves out tests of operands where the next step tests the result, which shows the same:
  /// nothing else can go wrong in between.
  static void LeaveOutTests(FormulaProgram& program);

  TokenArray records{};
  /// What each record holds; kNone: what it held from the beginning.
  std::array<Index, kTokenRecords> held;
  std::vector<Value> values{{}};
  const EngineError* failure = nullptr;
  Index result = 0;
};

}  // namespace vexa

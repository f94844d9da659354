#include "engine/FormulaPlanner.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "engine/SyntaxRules.h"

namespace vexa {

bool FormulaPlanner::Value::operator==(const Value& other) const {
  return operation == other.operation && left == other.left && right == other.right &&
         std::bit_cast<std::uint64_t>(constant) == std::bit_cast<std::uint64_t>(other.constant);
}

FormulaPlanner::FormulaPlanner(std::span<const Token> formula) {
  held.fill(kNone);
  const std::size_t count = std::min(formula.size(), std::size_t{kMaxTokens + 1});
  std::copy_n(formula.begin(), count, records.begin());
  for (std::size_t i = 0; i < count; ++i) {
    if (records[i].isOperand != 1 || records[i].op != 'x') continue;
    records[i].op = 0;
    held[i] = 0;
  }
  failure = FindSyntaxError(SyntaxRules::Decimal, std::span(records).first(count));
  if (!failure) Reduction(records, static_cast<int>(count), BaseType::Dec, *this).Run();
}

bool FormulaPlanner::Take(const ReductionStep& step) {
  const Index left = Held(step.left);
  const Index right = Held(step.right);
  held[step.left] = Find({step.operation, left, right});
  return true;
}

FormulaPlanner::Index FormulaPlanner::Held(std::size_t record) {
  if (held[record] == kNone) held[record] = Find({.constant = records[record].value});
  return held[record];
}

FormulaPlanner::Index FormulaPlanner::Find(const Value& value) {
  // X, the first one, looks like the constant 0.
  const auto found = std::find(values.begin() + 1, values.end(), value);
  const auto index = static_cast<Index>(found - values.begin());
  if (found == values.end()) values.push_back(value);
  return index;
}

bool FormulaPlanner::IsTested(FormulaProgram::Column column,
                              const FormulaProgram::Instruction& step) {
  return (step.testLeft && step.left == column) || (step.testRight && step.right == column);
}

std::vector<FormulaPlanner::Index> FormulaPlanner::LastUses() const {
  std::vector<Index> uses(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto index = static_cast<Index>(i);
    uses[i] = index;
    if (values[i].operation) uses[values[i].left] = uses[values[i].right] = index;
  }
  uses[result] = kNone;
  return uses;
}

FormulaProgram FormulaPlanner::Program() const {
  FormulaProgram program{FormulaProgram::Unplanned{}};
  program.failure = failure;
  std::vector<FormulaProgram::Column> columns(values.size(), FormulaProgram::kX);
  std::vector<bool> tested(values.size());
  for (std::size_t i = 1; i < values.size(); ++i) {
    if (values[i].operation) continue;
    columns[i] = static_cast<FormulaProgram::Column>(program.columnCount++);
    tested[i] = std::isfinite(values[i].constant);
    program.constants.push_back(values[i].constant);
  }

  const std::vector<Index> lastUses = LastUses();
  std::vector<FormulaProgram::Column> free;
  const auto release = [&](Index value, std::size_t at) {
    if (values[value].operation && lastUses[value] == at) free.push_back(columns[value]);
  };
  const auto test = [&](const Operation& operation, Index value) {
    const bool needed = operation.NeedsFinite() && !tested[value];
    if (needed) tested[value] = true;
    return needed;
  };
  for (std::size_t i = 1; i < values.size(); ++i) {
    const auto& [operation, left, right, constant] = values[i];
    if (!operation) continue;
    if (free.empty()) free.push_back(static_cast<FormulaProgram::Column>(program.columnCount++));
    columns[i] = free.back();
    free.pop_back();
    const bool testLeft = test(*operation, left);
    program.instructions.push_back(
        {operation, columns[left], columns[right], columns[i], testLeft, test(*operation, right)});
    release(left, i);
    if (right != left) release(right, i);
    release(static_cast<Index>(i), i);
  }
  program.result = columns[result];
  program.testResult = !tested[result];
  LeaveOutTests(program);
  return program;
}

void FormulaPlanner::LeaveOutTests(FormulaProgram& program) {
  for (std::size_t i = 0; i < program.instructions.size(); ++i) {
    FormulaProgram::Instruction& step = program.instructions[i];
    if (step.operation->operands != Operands::FiniteBySpread) continue;
    const bool isLast = i + 1 == program.instructions.size();
    const bool isTested =
        isLast ? !program.failure && program.testResult && program.result == step.result
               : IsTested(step.result, program.instructions[i + 1]);
    if (isTested) step.testLeft = step.testRight = false;
  }
}

}  // namespace vexa

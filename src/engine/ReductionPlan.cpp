#include "engine/ReductionPlan.h"

#include <algorithm>

namespace vexa {
namespace {

/// Everything of a record but its value. Codes and kinds are below 256.
std::uint32_t StructureOf(const Token& token) {
  return static_cast<std::uint32_t>(static_cast<unsigned char>(token.op)) |
         static_cast<std::uint32_t>(token.isOperand) << 8 |
         static_cast<std::uint32_t>(token.kind) << 16 |
         static_cast<std::uint32_t>(token.funcCode) << 24;
}

}  // namespace

bool ReductionPlan::Fits(std::span<const Token> records, BaseType base) const {
  return records.size() == recordCount && base == plannedBase && !records.empty() &&
         std::equal(records.begin(), records.end(), structure.begin(),
                    [](const Token& token, std::uint32_t s) { return StructureOf(token) == s; });
}

void ReductionPlan::Begin(std::span<const Token> records, BaseType base) {
  std::transform(records.begin(), records.end(), structure.begin(), StructureOf);
  recordCount = records.size();
  plannedBase = base;
  stepCount = 0;
  failed = false;
}

void ReductionPlan::Add(const ReductionStep& step) {
  if (!failed) steps[stepCount++] = step;
}

void ReductionPlan::Fail(const ReductionStep& failure) {
  Add(failure);
  failed = true;
}

}  // namespace vexa

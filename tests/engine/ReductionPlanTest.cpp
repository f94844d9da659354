#include "engine/ReductionPlan.h"

#include <gtest/gtest.h>

#include <vector>

namespace vexa {
namespace {

const std::vector<Token> kSum{{.isOperand = 1, .value = 1.0},
                              {.op = '+', .kind = kOperatorKind},
                              {.isOperand = 1, .value = 2.0}};

TEST(ReductionPlan, FitsTheSameStructureWhateverTheValues) {
  ReductionPlan plan;
  EXPECT_FALSE(plan.Fits(kSum, BaseType::Dec));
  EXPECT_FALSE(plan.Fits({}, BaseType::Dec));
  plan.Begin(kSum, BaseType::Dec);
  EXPECT_TRUE(plan.Fits(kSum, BaseType::Dec));
  EXPECT_FALSE(plan.Fits(kSum, BaseType::Hex));

  std::vector<Token> others = kSum;
  others[2].value = -7.0;
  EXPECT_TRUE(plan.Fits(others, BaseType::Dec));
  others.push_back({});
  EXPECT_FALSE(plan.Fits(others, BaseType::Dec));

  const Token changes[] = {{.op = '-', .kind = kOperatorKind},
                           {.op = '+', .isOperand = 1, .kind = kOperatorKind},
                           {.op = '+', .kind = kFunctionKind},
                           {.op = '+', .funcCode = 41, .kind = kOperatorKind}};
  for (const Token& change : changes) {
    std::vector<Token> changed = kSum;
    changed[1] = change;
    EXPECT_FALSE(plan.Fits(changed, BaseType::Dec));
  }
}

TEST(ReductionPlan, NothingFollowsAFailure) {
  ReductionPlan plan;
  plan.Begin(kSum, BaseType::Dec);
  plan.Add({.run = RunNegation, .left = 2});
  EXPECT_FALSE(plan.Failed());
  plan.Fail({.run = RunFailure, .code = 2});
  EXPECT_TRUE(plan.Failed());
  plan.Add({.run = RunNegation, .left = 1});
  plan.Fail({.run = RunFailure, .code = 4});
  ASSERT_EQ(plan.Steps().size(), 2u);
  EXPECT_EQ(plan.Steps()[0].run, &RunNegation);
  EXPECT_EQ(plan.Steps()[0].left, 2);
  EXPECT_EQ(plan.Steps()[1].run, &RunFailure);
  EXPECT_EQ(plan.Steps()[1].code, 2);
}

TEST(ReductionPlan, BeginsAnew) {
  ReductionPlan plan;
  plan.Begin(kSum, BaseType::Dec);
  plan.Fail({.run = RunFailure, .code = 2});
  plan.Begin(kSum, BaseType::Oct);
  EXPECT_FALSE(plan.Failed());
  EXPECT_TRUE(plan.Steps().empty());
  plan.Finish(2);
  EXPECT_EQ(plan.ResultIndex(), 2);
}

}  // namespace
}  // namespace vexa

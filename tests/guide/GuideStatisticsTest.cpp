// The worked examples of the statistics give what the guide says.

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"
#include "guide/GuideBlocks.h"
#include "stats/NistFiles.h"
#include "stats/Statistics.h"

namespace vexa {
namespace {

using namespace test;

void ExpectAnswers(Statistics& statistics, const Block& block) {
  for (const std::string& line : block.lines) {
    const auto [caption, answer] = Sides(line);
    ASSERT_TRUE(statistics.ShowResult(Wide(caption), {}).has_value()) << line;
    EXPECT_EQ(Bytes(statistics.resultLine), answer) << block.page << ": " << line;
  }
}

TEST(GuideStatistics, OneVariable) {
  const auto blocks = BlocksOfKind("1-var");
  ASSERT_FALSE(blocks.empty());
  for (const Block& block : blocks) {
    MemorySettingsStore store;
    Statistics statistics(store, kOneVarColumns);
    const Rows rows = OneVarRows(block.settings.at(0));
    ASSERT_FALSE(rows.empty()) << block.settings.at(0);
    statistics.Load(DataOf(2, rows));
    ExpectAnswers(statistics, block);
  }
}

TEST(GuideStatistics, TwoVariables) {
  const auto blocks = BlocksOfKind("2-var");
  ASSERT_FALSE(blocks.empty());
  for (const Block& block : blocks) {
    MemorySettingsStore store;
    Statistics statistics(store, kTwoVarColumns);
    const Rows rows = TwoVarRows(block.settings.at(0));
    ASSERT_FALSE(rows.empty()) << block.settings.at(0);
    statistics.Load(DataOf(3, rows));
    const auto model =
        std::ranges::find(kRegressionModels, Wide(block.settings.at(1)), &RegressionCurve::caption);
    ASSERT_NE(model, kRegressionModels.end());
    statistics.ChooseModel(model->model);
    ExpectAnswers(statistics, block);
  }
}

}  // namespace
}  // namespace vexa

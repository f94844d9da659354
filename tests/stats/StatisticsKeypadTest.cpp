// The keys of the statistics screens: captions, places, which are shown and enabled when.

#include "stats/StatisticsKeypad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "stats/ResultKeys.h"

namespace vexa {
namespace {

using Captions = std::vector<std::wstring>;

const std::span<const Key> kTables[] = {EntryKeys(), ListKeys(), OneVarKeys(), TwoVarKeys()};

Captions CaptionsWhere(std::span<const Key> keys,
                       bool (*test)(const Key&, const StatisticsKeypadState&),
                       const StatisticsKeypadState& state) {
  Captions captions;
  for (const Key& key : keys) {
    if (test(key, state)) captions.emplace_back(key.caption);
  }
  return captions;
}

StatisticsKeypadState WithModel(RegressionModel model) {
  StatisticsKeypadState state;
  state.model = model;
  return state;
}

StatisticsKeypadState WhileEditing() {
  StatisticsKeypadState state;
  state.editing = true;
  return state;
}

bool Has(const Captions& captions, std::wstring_view caption) {
  return std::ranges::find(captions, caption) != captions.end();
}

TEST(StatisticsKeypad, OneVarCaptions) {
  EXPECT_EQ(CaptionsWhere(OneVarKeys(), IsKeyShown, {}),
            (Captions{L"\u03A3X", L"\u03A3X^2", L"MEM", L"Arithmetic Mean of X",
                      L"\u03C3(n-1) of X", L"\u03C3(n) of X"}));
}

TEST(StatisticsKeypad, TwoVarCaptionsOfTheLinearModel) {
  EXPECT_EQ(
      CaptionsWhere(TwoVarKeys(), IsKeyShown, {}),
      (Captions{L"\u03A3X", L"\u03A3Y", L"\u03A3XY", L"\u03A3X^2", L"\u03A3Y^2", L"MEM",
                L"Mean of X", L"Mean of Y", L"Lin", L"\u03C3(n-1) of X", L"\u03C3(n-1) of Y",
                L"Plot", L"\u03C3(n) of X", L"\u03C3(n) of Y", L"r", L"A", L"B", L"Y'", L"X'"}));
}

TEST(StatisticsKeypad, KeysOfEachModel) {
  for (const RegressionCurve& name : kRegressionModels) {
    const Captions shown = CaptionsWhere(TwoVarKeys(), IsKeyShown, WithModel(name.model));
    const bool quadratic = name.model == RegressionModel::Quadratic;
    for (const auto caption : {L"r", L"X'"}) EXPECT_EQ(Has(shown, caption), !quadratic);
    for (const auto caption : {L"C", L"X1'", L"X2'"}) EXPECT_EQ(Has(shown, caption), quadratic);
    for (const RegressionCurve& other : kRegressionModels) {
      EXPECT_EQ(Has(shown, other.caption), other.model == name.model);
    }
  }
}

TEST(StatisticsKeypad, EntryKeysTakeEachOthersPlace) {
  EXPECT_EQ(CaptionsWhere(EntryKeys(), IsKeyShown, {}), (Captions{L"Add"}));
  EXPECT_EQ(CaptionsWhere(EntryKeys(), IsKeyShown, WhileEditing()), (Captions{L"Ok", L"Cancel"}));
  EXPECT_EQ(CaptionsWhere(EntryKeys(), IsKeyEnabled, {}), (Captions{L"Add", L"Ok", L"Cancel"}));
}

TEST(StatisticsKeypad, ListKeysFollowTheirControls) {
  EXPECT_EQ(CaptionsWhere(ListKeys(), IsKeyEnabled, {}), (Captions{L"Load"}));
  const struct {
    bool ListControls::*control;
    std::wstring_view caption;
  } cases[] = {{&ListControls::edit, L"Edit"},
               {&ListControls::remove, L"Delete"},
               {&ListControls::clear, L"Clear"},
               {&ListControls::save, L"Save"}};
  for (const auto& c : cases) {
    StatisticsKeypadState state;
    state.controls.load = false;
    state.controls.*c.control = true;
    EXPECT_EQ(CaptionsWhere(ListKeys(), IsKeyEnabled, state), (Captions{std::wstring(c.caption)}));
  }
}

TEST(StatisticsKeypad, OnlyMemoryIsEnabledWithoutStatistics) {
  EXPECT_EQ(CaptionsWhere(OneVarKeys(), IsKeyEnabled, {}), (Captions{L"MEM"}));
  EXPECT_EQ(CaptionsWhere(TwoVarKeys(), IsKeyEnabled, {}), (Captions{L"MEM"}));
}

TEST(StatisticsKeypad, StatisticsEnableAllButTheCorrelation) {
  StatisticsKeypadState state;
  state.controls.statistics = true;
  Captions enabled = CaptionsWhere(TwoVarKeys(), IsKeyEnabled, state);
  EXPECT_EQ(enabled.size(), TwoVarKeys().size() - 1);
  EXPECT_FALSE(Has(enabled, L"r"));
  state.controls.correlation = true;
  EXPECT_EQ(CaptionsWhere(TwoVarKeys(), IsKeyEnabled, state).size(), TwoVarKeys().size());
}

TEST(StatisticsKeypad, NoTwoShownKeysShareACell) {
  for (const auto keys : kTables) {
    for (const bool editing : {false, true}) {
      for (const RegressionCurve& name : kRegressionModels) {
        StatisticsKeypadState state = WithModel(name.model);
        state.editing = editing;
        std::set<std::pair<int, int>> cells;
        for (const Key& key : keys) {
          if (!IsKeyShown(key, state)) continue;
          for (int n = 0; n < key.columnSpan; ++n) {
            EXPECT_TRUE(cells.insert({key.row, key.column + n}).second);
          }
        }
      }
    }
  }
}

TEST(StatisticsKeypad, EveryKeySaysWhatItDoes) {
  for (const auto keys : kTables) {
    for (const Key& key : keys) EXPECT_FALSE(key.help.empty());
  }
}

TEST(StatisticsKeypad, EveryOtherKeyComputes) {
  for (const auto keys : {OneVarKeys(), TwoVarKeys()}) {
    for (const Key& key : keys) {
      const bool isCommand = key.role == KeyRole::Command;
      EXPECT_EQ(FindResultKey(key.caption) == nullptr, isCommand);
    }
  }
}

}  // namespace
}  // namespace vexa

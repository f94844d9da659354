#pragma once

#include <span>

#include "stats/DataList.h"
#include "stats/RegressionModel.h"
#include "toolkit/Key.h"

namespace vexa {

// The keys of the statistics screens, in tables.

/// Beside the total: what takes the edits' values. "Ok" and "Cancel" take the place of "Add" and of
/// the total while a row is edited.
std::span<const Key> EntryKeys();
/// Below the list: what is done with its rows.
std::span<const Key> ListKeys();
/// The statistics of one variable.
std::span<const Key> OneVarKeys();
/// The statistics of two variables and their regression. Each model has a key; the current one's is
/// shown and opens the menu of models.
std::span<const Key> TwoVarKeys();

/// What decides which keys are shown and enabled.
struct StatisticsKeypadState {
  bool editing = false;
  ListControls controls;
  RegressionModel model = RegressionModel::Linear;
};

bool IsKeyShown(const Key& key, const StatisticsKeypadState& state);
bool IsKeyEnabled(const Key& key, const StatisticsKeypadState& state);

}  // namespace vexa

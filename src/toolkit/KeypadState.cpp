#include "toolkit/KeypadState.h"

#include <algorithm>
#include <span>

namespace vexa {
namespace {

/// A key that a condition of its own governs.
struct KeyCondition {
  std::wstring_view caption;
  bool (*holds)(const KeypadState&);
};

bool IsDegrees(const KeypadState& state) {
  return state.angleType == AngleType::Degrees;
}
bool IsRadians(const KeypadState& state) {
  return !IsDegrees(state);
}
bool HasHistory(const KeypadState& state) {
  return !state.historyIsEmpty;
}

constexpr KeyCondition kShownWhen[] = {{L"DEG", IsDegrees}, {L"RAD", IsRadians}};
constexpr KeyCondition kEnabledWhen[] = {{L"PB", HasHistory}};

bool Holds(std::span<const KeyCondition> conditions, const Key& key, const KeypadState& state) {
  return std::ranges::all_of(conditions, [&](const KeyCondition& condition) {
    return condition.caption != key.caption || condition.holds(state);
  });
}

}  // namespace

bool IsKeyShown(const Key& key, const KeypadState& state) {
  const BaseSet bases = state.shifted ? key.places.shifted : key.places.unshifted;
  return Contains(bases, state.base) && Holds(kShownWhen, key, state);
}

bool IsKeyEnabled(const Key& key, const KeypadState& state) {
  return Contains(key.places.enabled, state.base) && Holds(kEnabledWhen, key, state);
}

}  // namespace vexa

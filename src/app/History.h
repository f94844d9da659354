#pragma once

#include <string>
#include <string_view>

#include "display/TextHistory.h"
#include "engine/CalcModes.h"

namespace vexa {

/// The last expressions and results of the calculator, oldest first. A result entry is "=", a base
/// tag such as "[D]", and the text as it was shown; every other entry is an expression as typed.
class History : public TextHistory {
 public:
  static constexpr int kCapacity = 10;

  History();
};

/// The entry that records a result shown as `displayText` in `base`, e.g. =[H]FF.
std::wstring ResultEntry(BaseType base, std::wstring_view displayText);

/// What recalling `entry` inserts while `base` is current: an expression as it stands, a result's
/// value converted to `base`, without thousands separators.
std::wstring RecallText(std::wstring_view entry, BaseType base, int precision);

}  // namespace vexa

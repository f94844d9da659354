#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "display/SettingsStore.h"
#include "terminal/Output.h"

namespace vexa::terminal {

/// What a command reads from and writes to, and the user's store.
class Console {
 public:
  explicit Console(SettingsStore& settingsStore) : store(settingsStore) {}

  SettingsStore& store;
  int input = 0;
  Output out{1};
  Output errors{2};

  /// Writes what is wrong to the errors; returns kFailed.
  int Complain(std::wstring_view sentence);
  int Complain(std::string_view sentence);
  /// The same for a command line that makes no sense; returns kWrongUse.
  int RefuseUse(std::string_view sentence);
  /// Writes what is wrong in a text, which `where` names if it is not empty, and below the text a
  /// caret at `place`, if it is known.
  void ComplainAbout(std::string_view where, std::wstring_view sentence, std::wstring_view text,
                     std::optional<std::size_t> place);
  /// Asks a question on a terminal and returns whether it was answered with yes; where nobody can
  /// be asked, yes.
  bool Confirms(std::wstring_view question);
  /// Brings all output to where it goes.
  void Flush();
};

}  // namespace vexa::terminal

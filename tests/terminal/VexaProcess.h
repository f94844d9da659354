#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexa::test {

/// What a run of the program left.
struct VexaRun {
  /// The exit status; 128 and the signal's number when a signal ended it.
  int status = -1;
  std::string out;
  std::string errors;
};

/// Where the program finds its standard files; an empty name: what the test hands over or collects.
struct VexaPlace {
  std::string home;
  std::string output = {};
  /// Further variables of the environment: NAME=VALUE.
  std::vector<std::string> environment = {};
};

/// Runs the program with these words and this standard input, in an environment of its own. Ends it
/// after a minute.
VexaRun RunVexa(const std::vector<std::string>& words, std::string_view input,
                const VexaPlace& place);

/// The lines of a text.
std::vector<std::string> Lines(std::string_view text);

/// A folder with the locales de_DE.UTF-8 and tr_TR.UTF-8, for LOCPATH.
std::string LocaleFolder();

}  // namespace vexa::test

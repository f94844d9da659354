#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::terminal {

class Console;

/// What a word of the command line stands for; a shell completes it accordingly.
enum class WordKind { Other, Expression, File, Unit, Macro, Category };

/// A word that an option takes, and the code that it stands for.
struct Choice {
  std::string_view name;
  int code;
  std::string_view help;
};

/// An option of a command.
struct Option {
  std::string_view name;   ///< its long name: base
  char letter;             ///< its short name, 0: none
  std::string_view value;  ///< what stands behind it, as help calls it; empty: nothing does
  std::string_view help;
  std::span<const Choice> choices{};  ///< the words that may stand there; empty: any
  int values = 1;                     ///< how many words stand there, when any do
  WordKind kind = WordKind::Other;
};

/// Words that a command takes besides its options.
struct Argument {
  std::string_view name;
  std::string_view help;
  WordKind kind = WordKind::Other;
  std::span<const Choice> choices{};
  int least = 1;
  int most = 1;
};

/// As many as a command line holds.
inline constexpr int kAnyNumber = 1 << 24;

/// The words of a command line by the names of options and arguments.
class Given {
 public:
  void Add(std::string_view name, std::vector<std::string> words) {
    values.insert_or_assign(std::string(name), std::move(words));
  }
  bool Has(std::string_view name) const { return values.find(name) != values.end(); }
  /// All words of an option or an argument; none: it was left out.
  std::span<const std::string> All(std::string_view name) const {
    const auto found = values.find(name);
    return found == values.end() ? std::span<const std::string>{} : found->second;
  }
  /// The first of them; empty: it was left out.
  std::string_view One(std::string_view name) const {
    const auto words = All(name);
    return words.empty() ? std::string_view{} : std::string_view(words.front());
  }

 private:
  std::map<std::string, std::vector<std::string>, std::less<>> values;
};

/// How a command ended, as the process tells its caller.
enum ExitStatus : int {
  kDone = 0,
  kFailed = 1,    ///< an expression, a file or a name was refused
  kWrongUse = 2,  ///< the command line makes no sense
};

/// A command, all that help, the parser, the completion and the manual page know of it.
struct Command {
  std::string_view name;     ///< one or two words: macro set
  std::string_view summary;  ///< one line
  std::span<const Argument> arguments;
  std::span<const Option> options;
  std::string_view more;  ///< what the summary leaves open, and examples
  int (*run)(const Given& given, Console& console);
};

}  // namespace vexa::terminal

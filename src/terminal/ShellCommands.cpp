#include <array>

#include "terminal/CommandLine.h"
#include "terminal/Commands.h"
#include "terminal/Completion.h"
#include "terminal/Console.h"
#include "terminal/ManPage.h"

namespace vexa::terminal {
namespace {

// Each shell asks the program itself what a word may become, so that the tables, and the user's own
// macros and conversions, are all there is to know.
constexpr std::string_view kBash = R"sh(_vexa() {
  local line words=("${COMP_WORDS[@]:1:COMP_CWORD}")
  COMPREPLY=()
  while IFS= read -r line; do
    if [[ $line == '<file>' ]]; then
      compopt -o filenames
      while IFS= read -r line; do COMPREPLY+=("$line"); done < <(compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
    else
      COMPREPLY+=("$(printf %q "$line")")
    fi
  done < <(vexa completion words -- "${words[@]}" 2>/dev/null)
}
complete -F _vexa vexa
)sh";
constexpr std::string_view kZsh = R"sh(#compdef vexa
_vexa() {
  local -a found
  found=("${(@f)$(vexa completion words -- "${(@)words[2,CURRENT]}" 2>/dev/null)}")
  if (( ${found[(Ie)<file>]} )); then _files; found=("${(@)found:#<file>}"); fi
  compadd -U -a found
}
if [ "$funcstack[1]" = "_vexa" ]; then _vexa "$@"; else compdef _vexa vexa; fi
)sh";
constexpr std::string_view kFish = R"sh(function __vexa_words
  set -l words (commandline -opc) (commandline -ct)
  for word in (vexa completion words -- $words[2..-1] 2>/dev/null)
    if test "$word" = '<file>'
      __fish_complete_path (commandline -ct)
    else
      echo $word
    end
  end
end
complete -c vexa -f -a '(__vexa_words)'
)sh";

enum Shell : int { kBashCode, kZshCode, kFishCode, kWordsCode };
constexpr std::array kScripts{kBash, kZsh, kFish};

constexpr Choice kShells[] = {
    {"bash", kBashCode, ""},
    {"zsh", kZshCode, ""},
    {"fish", kFishCode, ""},
    {"words", kWordsCode, "what the last one of the words behind -- may become"},
};
constexpr Argument kArguments[] = {
    {.name = "SHELL", .help = "Whose script is written", .choices = kShells},
    {.name = "WORD", .help = "Words of a command line", .least = 0, .most = kAnyNumber},
};
constexpr std::string_view kMore =
    "Examples:\n"
    "  source <(vexa completion bash)\n"
    "  vexa completion fish > ~/.config/fish/completions/vexa.fish\n";

int RunCompletion(const Given& given, Console& console) {
  const int shell = *FindChoice(kShells, given.One("SHELL"));
  if (shell != kWordsCode) {
    console.out.Write(kScripts[static_cast<std::size_t>(shell)]);
    return kDone;
  }
  const auto words = given.All("WORD");
  for (const std::string& text : CompleteWords({words.begin(), words.end()}, console.store).texts) {
    console.out.Write(text + "\n");
  }
  return kDone;
}

int RunMan(const Given&, Console& console) {
  console.out.Write(ManPage());
  return kDone;
}

}  // namespace

const Command kCompletionCommand{.name = "completion",
                                 .summary = "Writes the script that lets a shell complete words",
                                 .arguments = kArguments,
                                 .options = {},
                                 .more = kMore,
                                 .run = RunCompletion};
const Command kManCommand{.name = "man",
                          .summary = "Writes the manual page",
                          .arguments = {},
                          .options = {},
                          .more = "Example:\n  vexa man | man -l -\n",
                          .run = RunMan};

}  // namespace vexa::terminal

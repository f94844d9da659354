#include "macros/InlineMacros.h"

#include <algorithm>
#include <vector>

#include "engine/AsciiCase.h"
#include "engine/EngineErrors.h"
#include "macros/MacroCallText.h"

namespace vexa {
namespace {

std::wstring InParentheses(std::wstring_view text) {
  std::wstring enclosed = L"(";
  enclosed += text;
  enclosed += L')';
  return enclosed;
}

using Arguments = std::vector<std::wstring_view>;

/// The texts between the commas of `arguments`.
Arguments Split(std::wstring_view arguments) {
  Arguments texts;
  while (true) {
    const std::size_t comma = std::min(arguments.find(L','), arguments.size());
    texts.push_back(arguments.substr(0, comma));
    if (comma == arguments.size()) return texts;
    arguments.remove_prefix(comma + 1);
  }
}

/// Which variables an argument has is checked with the whole formula.
constexpr FormulaType kAnyVariables{-1};

bool IsLetter(wchar_t c) {
  return ToLowerAscii(c) >= L'a' && ToLowerAscii(c) <= L'z';
}

/// `formula` with the texts of `arguments` in the places of x, y and z. Words are left alone.
std::wstring Substituted(std::wstring_view formula, const Arguments& arguments) {
  std::wstring text;
  while (!formula.empty()) {
    const auto word = static_cast<std::size_t>(
        std::find_if_not(formula.begin(), formula.end(), IsLetter) - formula.begin());
    const std::size_t length = std::max<std::size_t>(word, 1);
    const auto variable = static_cast<std::size_t>(ToLowerAscii(formula[0]) - L'x');
    if (word == 1 && variable < arguments.size()) {
      text += InParentheses(arguments[variable]);
    } else {
      text += formula.substr(0, length);
    }
    formula.remove_prefix(length);
  }
  return text;
}

bool IsFormula(std::wstring_view text, FormulaType type) {
  ExprParser parser;
  parser.formulaType = type;
  parser.Validate(text);
  return parser.errorText.empty();
}

/// Puts formulas in the places of calls. Each macro is looked at once, however often it is called.
class CallInliner {
 public:
  explicit CallInliner(const MacroTable& table) : macros(table) {
    for (int i = 0; i < macros.Count(); ++i) {
      known.push_back({macros.At(i).name});
      std::erase(known.back().nameWithoutBlanks, L' ');
    }
  }

  /// What `call` stands for, or a sentence in `error`.
  std::wstring Inlined(const MacroCallText& call, std::wstring& error) {
    const std::optional<int> index = Find(call.name);
    if (!index) return error = kMacroNameError, L"";
    const FormulaType type = MacroTypeOf(macros.At(*index).type).formulaType;
    const Arguments arguments = Split(call.arguments);
    const bool areFormulas = std::ranges::all_of(
        arguments, [](std::wstring_view argument) { return IsFormula(argument, kAnyVariables); });
    if (call.commas != static_cast<std::size_t>(type) || arguments.size() != call.commas + 1 ||
        !areFormulas) {
      return error = kMacroArgumentError, L"";
    }
    const std::wstring& formula = FormulaOf(*index, type);
    if (formula.empty()) return error = kMacroFormulaError, L"";
    return InParentheses(Substituted(formula, arguments));
  }

 private:
  struct KnownMacro {
    std::wstring nameWithoutBlanks;
    /// None before it was needed; empty: it is no formula.
    std::optional<std::wstring> formula{};
  };

  std::optional<int> Find(std::wstring_view name) const {
    if (const std::optional<int> index = macros.Find(name)) return index;
    const auto found = std::ranges::find(known, name, &KnownMacro::nameWithoutBlanks);
    if (found == known.end()) return std::nullopt;
    return static_cast<int>(found - known.begin());
  }

  const std::wstring& FormulaOf(int index, FormulaType type) {
    std::optional<std::wstring>& formula = known[static_cast<std::size_t>(index)].formula;
    if (!formula) {
      formula = macros.ReadFormula(index);
      if (!IsFormula(*formula, type)) formula->clear();
    }
    return *formula;
  }

  const MacroTable& macros;
  std::vector<KnownMacro> known;
};

}  // namespace

std::wstring InlineMacros(std::wstring_view formula, const MacroTable& macros,
                          std::wstring& error) {
  std::wstring text;
  error.clear();
  std::size_t mark = formula.find(kMacroCallMark);
  // Only the first call's left neighbour is tested; the engine sees the others'.
  if (mark != std::wstring_view::npos && !MayPrecedeCall(formula.substr(0, mark))) {
    return error = kExpressionErrorText;
  }
  CallInliner calls(macros);
  // More calls than a formula has records are not worth the room that they take.
  for (int n = 0; n <= kMaxTokens && mark != std::wstring_view::npos; ++n) {
    text += formula.substr(0, mark);
    formula.remove_prefix(mark + kMacroCallMark.size());
    const std::optional<MacroCallText> call = ReadMacroCall(formula);
    if (!call) return error = kExpressionErrorText;
    text += calls.Inlined(*call, error);
    if (!error.empty()) return error;
    formula.remove_prefix(call->length);
    mark = formula.find(kMacroCallMark);
  }
  return text += formula;
}

}  // namespace vexa

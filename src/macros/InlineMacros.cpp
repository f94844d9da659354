#include "macros/InlineMacros.h"

#include <algorithm>
#include <utility>
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

/// Whether a ")" comes before its "(" in `formula`: in parentheses of its own it would find
/// another.
bool ClosesTooEarly(std::wstring_view formula) {
  int depth = 0;
  for (const wchar_t c : formula) {
    if (c == L'(') ++depth;
    if (c == L')' && --depth < 0) return true;
  }
  return false;
}

/// Whether a function stands alone in its parentheses: it takes the operand behind them, of which a
/// call leaves one value, and the formula in its place several.
bool HasLoneFunction(std::wstring_view formula) {
  ExprParser parser;
  parser.formulaType = kAnyVariables;
  parser.Validate(formula);
  if (!parser.errorText.empty()) return false;
  const auto lone = [](const Token& a, const Token& b) {
    return a.kind == kFunctionKind && b.op == ')';
  };
  return std::ranges::adjacent_find(parser.Records(), lone) != parser.Records().end();
}

/// `text` with single blanks only: more take room and mean nothing.
std::wstring WithSingleBlanks(std::wstring text) {
  const auto areBlanks = [](wchar_t a, wchar_t b) { return a == L' ' && b == L' '; };
  text.erase(std::unique(text.begin(), text.end(), areBlanks), text.end());
  return text;
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

  /// Appends what `call` stands for to `text`. Returns the sentence of a failure; empty: success.
  std::wstring Append(const MacroCallText& call, std::wstring& text) {
    const std::optional<int> index = Find(call.name);
    if (!index) return std::wstring(kMacroNameError);
    const FormulaType type = MacroTypeOf(macros.At(*index).type).formulaType;
    const Arguments arguments = Split(call.arguments);
    const bool areFormulas = std::ranges::all_of(
        arguments, [](std::wstring_view argument) { return IsFormula(argument, kAnyVariables); });
    if (call.commas != static_cast<std::size_t>(type) || arguments.size() != call.commas + 1 ||
        !areFormulas) {
      return std::wstring(kMacroArgumentError);
    }
    const std::wstring& formula = FormulaOf(*index, type);
    if (formula.empty()) return std::wstring(kMacroFormulaError);
    if (ClosesTooEarly(formula)) return std::wstring(kExpressionErrorText);
    text += InParentheses(Substituted(formula, arguments));
    return {};
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
      formula = WithSingleBlanks(macros.ReadFormula(index));
      if (!IsFormula(*formula, type)) formula->clear();
    }
    return *formula;
  }

  const MacroTable& macros;
  std::vector<KnownMacro> known;
};

/// Appends `formula`, which has calls, to `text`, with formulas in their places. Returns the
/// sentence of a failure; empty: success.
std::wstring InlineCalls(std::wstring_view formula, const MacroTable& macros, std::wstring& text) {
  const std::wstring expressionError(kExpressionErrorText);
  std::size_t mark = formula.find(kMacroCallMark);
  // Only the first call's left neighbour is tested; the engine sees the others'.
  if (!MayPrecedeCall(formula.substr(0, mark))) return expressionError;
  CallInliner calls(macros);
  // More calls than a formula has records are not worth the room that they take.
  for (int n = 0; n <= kMaxTokens && mark != std::wstring_view::npos; ++n) {
    text += formula.substr(0, mark);
    formula.remove_prefix(mark + kMacroCallMark.size());
    const std::optional<MacroCallText> call = ReadMacroCall(formula);
    if (!call) return expressionError;
    std::wstring sentence = calls.Append(*call, text);
    if (!sentence.empty()) return sentence;
    formula.remove_prefix(call->length);
    mark = formula.find(kMacroCallMark);
  }
  text += formula;
  return HasLoneFunction(text) ? expressionError : std::wstring();
}

}  // namespace

std::wstring InlineMacros(std::wstring_view formula, const MacroTable& macros,
                          std::wstring& error) {
  error.clear();
  std::wstring text(formula);
  if (formula.find(kMacroCallMark) == std::wstring_view::npos) return text;
  const std::wstring spared = WithSingleBlanks(std::move(text));
  text.clear();
  error = InlineCalls(spared, macros, text);
  return text;
}

}  // namespace vexa

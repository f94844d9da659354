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

/// The texts between the commas of `arguments`.
std::vector<std::wstring_view> Split(std::wstring_view arguments) {
  std::vector<std::wstring_view> texts;
  while (true) {
    const std::size_t comma = std::min(arguments.find(L','), arguments.size());
    texts.push_back(arguments.substr(0, comma));
    if (comma == arguments.size()) return texts;
    arguments.remove_prefix(comma + 1);
  }
}

bool IsLetter(wchar_t c) {
  return ToLowerAscii(c) >= L'a' && ToLowerAscii(c) <= L'z';
}

/// `formula` with the texts of `arguments` in the places of x, y and z. Words are left alone.
std::wstring Substituted(std::wstring_view formula,
                         const std::vector<std::wstring_view>& arguments) {
  std::wstring text;
  while (!formula.empty()) {
    const std::size_t word = static_cast<std::size_t>(
        std::find_if_not(formula.begin(), formula.end(), IsLetter) - formula.begin());
    const std::size_t length = std::max<std::size_t>(word, 1);
    const std::size_t variable = static_cast<std::size_t>(ToLowerAscii(formula[0]) - L'x');
    if (word == 1 && variable < arguments.size()) {
      text += InParentheses(arguments[variable]);
    } else {
      text += formula.substr(0, length);
    }
    formula.remove_prefix(length);
  }
  return text;
}

}  // namespace

std::wstring InlineMacros(std::wstring_view formula, const MacroTable& macros,
                          std::wstring& error) {
  std::wstring text;
  error.clear();
  std::size_t mark = formula.find(kMacroCallMark);
  while (mark != std::wstring_view::npos) {
    text += formula.substr(0, mark);
    formula.remove_prefix(mark + kMacroCallMark.size());
    const std::optional<MacroCallText> call = ReadMacroCall(formula);
    if (!call) return error = kExpressionErrorText, text;
    const std::optional<int> index = macros.Find(call->name);
    if (!index) return error = kMacroNameError, text;
    const std::vector<std::wstring_view> arguments = Split(call->arguments);
    const FormulaType type = MacroTypeOf(macros.At(*index).type).formulaType;
    if (call->commas != static_cast<std::size_t>(type)) return error = kMacroArgumentError, text;
    text += InParentheses(Substituted(macros.ReadFormula(*index), arguments));
    formula.remove_prefix(call->length);
    mark = formula.find(kMacroCallMark);
  }
  return text += formula;
}

}  // namespace vexa

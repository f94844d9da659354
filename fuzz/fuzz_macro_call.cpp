// Any text as an expression and as a plotted function with macro calls, over any table of macros.
// The input: a byte for the modes, the expression, then a line for each macro: a digit for its
// type, its name, a tab, and its formula.

#include <algorithm>
#include <string_view>

#include "FuzzInput.h"
#include "display/MemorySettingsStore.h"
#include "macros/ExpandMacros.h"
#include "macros/InlineMacros.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

constexpr std::wstring_view kCall = L"M:";

void TakeMacros(FuzzInput& input, MacroTable& macros) {
  while (!input.IsEmpty() && macros.Count() < kMaxMacros) {
    const MacroType& type = kMacroTypes[input.TakeByte() % kMacroTypes.size()];
    const std::wstring name = input.TakeText('\t');
    macros.AddMacro(name, type.storedText, input.TakeText('\n'));
  }
}

int CallMarks(std::wstring_view text) {
  int count = 0;
  for (std::size_t at = text.find(kCall); at != text.npos; at = text.find(kCall, at + 1)) ++count;
  return count;
}

void CheckInlined(const std::wstring& formula, const MacroTable& macros) {
  std::wstring error;
  const std::wstring inlined = InlineMacros(formula, macros, error);
  const int calls = CallMarks(formula);
  if (calls == 0) Promise(inlined == formula && error.empty(), "without a call nothing changes");
  // Calls that an engine has no room for are left; a name may hold a mark, too.
  const int left = std::max(calls - kMaxTokens - 1, 0);
  if (error.empty()) Promise(CallMarks(inlined) <= left, "formulas stand in the places of calls");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  AngleType angle;
  BaseType base;
  input.TakeModes(angle, base);
  const std::wstring expression = input.TakeText('\n');
  MemorySettingsStore store;
  MacroTable macros(store);
  TakeMacros(input, macros);

  const MacroExpansion expansion = ExpandMacros(expression, macros, angle, base);
  const bool hasCall = expression.find(kCall) != std::wstring::npos;
  if (!hasCall) Promise(expansion.expression == expression, "without a call nothing changes");
  if (expansion.error.empty()) {
    Promise(expansion.expression.find(kCall) == std::wstring::npos, "no call is left");
    Promise(expansion.lastMacroText.empty() != hasCall, "the last call is remembered");
    Promise(std::isfinite(expansion.lastResult), "a call's value is finite");
  }

  CheckInlined(expression, macros);

  const MacroExpansion again = ExpandMacros(expression, macros, angle, base);
  Promise(again.expression == expansion.expression && again.error == expansion.error &&
              SameValue(again.lastResult, expansion.lastResult),
          "equal expressions expand equally");
  return 0;
}

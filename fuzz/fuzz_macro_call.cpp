// Any text as an expression with macro calls, over any table of macros. The input: a byte for the
// modes, the expression, then a line for each macro: a digit for its type, its name, a tab, and its
// formula.

#include <string_view>

#include "FuzzInput.h"
#include "display/MemorySettingsStore.h"
#include "macros/ExpandMacros.h"

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

  const MacroExpansion again = ExpandMacros(expression, macros, angle, base);
  Promise(again.expression == expansion.expression && again.error == expansion.error &&
              SameValue(again.lastResult, expansion.lastResult),
          "equal expressions expand equally");
  return 0;
}

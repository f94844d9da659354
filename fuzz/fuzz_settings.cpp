// Any bytes as the settings file: what can be read of it is written back and read again, and the
// calculator starts, calculates and ends on it, whatever its counts and codes are.

#include "FuzzInput.h"
#include "app/Calculator.h"
#include "display/IniText.h"
#include "display/MemorySettingsStore.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

MemorySettingsStore Store(const IniValues& values) {
  MemorySettingsStore store;
  for (const auto& [key, text] : values) {
    if (const auto number = ParseIniInteger(text)) {
      store.WriteSettingInt(key.first, key.second, *number);
    } else {
      store.WriteSettingString(key.first, key.second, text);
    }
  }
  return store;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const std::optional<IniValues> values = ParseIni(bytes);
  if (!values) return 0;
  const std::optional<IniValues> again = ParseIni(FormatIni(*values));
  Promise(again == values, "a settings file holds what was written");

  MemorySettingsStore store = Store(*values);
  Calculator calculator(store);
  Promise(calculator.history.Count() >= 0 && calculator.history.Count() <= History::kCapacity,
          "the history fits");
  Promise(calculator.macros.Count() >= 0 && calculator.macros.Count() <= kMaxMacros,
          "the macro table fits");
  for (int i = 1; i <= calculator.history.Count(); ++i) calculator.RecallHistory(i);
  calculator.Evaluate(L"M:f(1)+2");
  calculator.Evaluate(L"101");
  calculator.Save();
  return 0;
}

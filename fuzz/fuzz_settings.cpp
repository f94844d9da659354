// Any bytes as the settings file, of this version or an earlier one: what can be read of it is
// written back and read again, and the calculator starts, calculates and ends on it, whatever its
// counts and codes are.

#include "FuzzInput.h"
#include "app/Calculator.h"
#include "display/MemorySettingsStore.h"
#include "files/OldSettings.h"
#include "files/SettingsJson.h"

using namespace vexa;
using namespace vexa::fuzz;

namespace {

MemorySettingsStore Store(const SettingsValues& values) {
  MemorySettingsStore store;
  for (const auto& [name, value] : values) {
    if (const int* const number = std::get_if<int>(&value)) {
      store.WriteSettingInt(name.first, name.second, *number);
    } else {
      store.WriteSettingString(name.first, name.second, std::get<std::wstring>(value));
    }
  }
  return store;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  auto values = ParseSettings(bytes);
  if (!values) values = ParseOldSettings(bytes);
  if (!values) return 0;
  Promise(ParseSettings(FormatSettings(*values)) == values,
          "a settings file holds what was written");

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

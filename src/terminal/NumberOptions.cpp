#include "terminal/NumberOptions.h"

#include "display/DisplayFormatting.h"
#include "display/FormatResult.h"
#include "display/SettingsLayout.h"
#include "terminal/CommandLine.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

template <typename Code>
void Take(const Given& given, const Option& option, Code& code) {
  if (!given.Has(option.name)) return;
  code = static_cast<Code>(*FindChoice(option.choices, given.One(option.name)));
}

}  // namespace

NumberModes StoredModes(const SettingsStore& store) {
  NumberModes modes{static_cast<AngleType>(Read(store, settings::kAngleType)),
                    static_cast<BaseType>(Read(store, settings::kBaseType)),
                    static_cast<DisplayType>(Read(store, settings::kDisplayType)),
                    Read(store, settings::kPrecision)};
  // As the calculator does: a stored base outside the four is decimal.
  if (modes.base < BaseType::Dec || modes.base > BaseType::Oct) modes.base = BaseType::Dec;
  return modes;
}

NumberModes ModesOf(const Given& given, const SettingsStore& store, std::string& error) {
  NumberModes modes = StoredModes(store);
  Take(given, kAngleOption, modes.angle);
  Take(given, kBaseOption, modes.base);
  Take(given, kDisplayOption, modes.display);
  if (given.Has(kPrecisionOption.name)) {
    error = Narrow(ReadDecimalPlaces(Wide(given.One(kPrecisionOption.name)), modes.precision));
  }
  return modes;
}

std::wstring Formatted(double value, const NumberModes& modes) {
  std::wstring overflow;
  return FormatResult(value, modes.display, modes.precision, modes.base, overflow);
}

}  // namespace vexa::terminal

#pragma once

#include "display/DisplayType.h"
#include "display/SettingsStore.h"
#include "engine/CalcModes.h"
#include "terminal/Command.h"

namespace vexa::terminal {

inline constexpr Choice kBaseChoices[] = {
    {"dec", static_cast<int>(BaseType::Dec), ""},
    {"hex", static_cast<int>(BaseType::Hex), ""},
    {"bin", static_cast<int>(BaseType::Bin), ""},
    {"oct", static_cast<int>(BaseType::Oct), ""},
};
inline constexpr Choice kAngleChoices[] = {
    {"deg", static_cast<int>(AngleType::Degrees), ""},
    {"rad", static_cast<int>(AngleType::Radians), ""},
};
inline constexpr Choice kDisplayChoices[] = {
    {"float", static_cast<int>(DisplayType::FloatingPoint), "as many decimals as needed"},
    {"fixed", static_cast<int>(DisplayType::FixedPoint), ""},
    {"sci", static_cast<int>(DisplayType::Scientific), ""},
    {"eng", static_cast<int>(DisplayType::Engineering), ""},
    {"currency", static_cast<int>(DisplayType::Currency), "like float, with thousands separators"},
};

inline constexpr Option kBaseOption{.name = "base",
                                    .letter = 'b',
                                    .value = "BASE",
                                    .help = "Base of the numbers",
                                    .choices = kBaseChoices};
inline constexpr Option kAngleOption{.name = "angle",
                                     .letter = 'a',
                                     .value = "UNIT",
                                     .help = "Unit of the angles",
                                     .choices = kAngleChoices};
inline constexpr Option kDisplayOption{.name = "display",
                                       .letter = 'd',
                                       .value = "TYPE",
                                       .help = "How results are written",
                                       .choices = kDisplayChoices};
inline constexpr Option kPrecisionOption{
    .name = "precision",
    .letter = 'p',
    .value = "N",
    .help = "Decimal places, 0 to 12, where the type has them"};
inline constexpr Option kJsonOption{
    .name = "json", .letter = 0, .value = "", .help = "Writes JSON, with all digits"};
inline constexpr Option kTsvOption{.name = "tsv",
                                   .letter = 0,
                                   .value = "",
                                   .help = "Writes columns separated by tabs, with all digits"};

/// How numbers are read and written.
struct NumberModes {
  AngleType angle;
  BaseType base;
  DisplayType display;
  int precision;
};

/// The modes that the store holds.
NumberModes StoredModes(const SettingsStore& store);
/// The same, changed by the options that are given. What is wrong with them is stored in `error`.
NumberModes ModesOf(const Given& given, const SettingsStore& store, std::string& error);

/// `value` as results are written; the overflow sentence when it is no number that can be.
std::wstring Formatted(double value, const NumberModes& modes);

}  // namespace vexa::terminal

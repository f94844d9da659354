#include "converter/UnitTables.h"

#include <algorithm>

namespace vexa {
namespace {

// Each line: position, name, size of one unit in the reference unit that the heading names.
// clang-format off

// 01. Area, in Square Meters.
constexpr auto kArea = std::to_array<UnitEntry>({
    /*  0 */ {L"Acres",              4046.8564224},
    /*  1 */ {L"Ares",               100.0},
    /*  2 */ {L"Circular Inches",    0.000506707479},
    /*  3 */ {L"Hectares",           10000.0},
    /*  4 */ {L"Roods",              1011.7141056},
    /*  5 */ {L"Square Centimeters", 0.0001},
    /*  6 */ {L"Square Feet",        0.09290304},
    /*  7 */ {L"Square Inches",      0.00064516},
    /*  8 */ {L"Square Kilometers",  1000000.0},
    /*  9 */ {L"Square Meters",      1.0},
    /* 10 */ {L"Square Miles",       2589988.110336},
    /* 11 */ {L"Square Millimeters", 1e-06},
    /* 12 */ {L"Square Yards",       0.83612736},
    /* 13 */ {L"Squares",            9.290304},
    /* 14 */ {L"Townships",          93239571.972},
});

// 02. Bit and Bytes, in Bytes.
constexpr auto kBitsAndBytes = std::to_array<UnitEntry>({
    /*  0 */ {L"Bits",      0.125},
    /*  1 */ {L"Bytes",     1.0},
    /*  2 */ {L"Kilobits",  128.0},
    /*  3 */ {L"Kilobytes", 1024.0},
    /*  4 */ {L"Megabits",  131072.0},
    /*  5 */ {L"Megabytes", 1048576.0},
    /*  6 */ {L"Gigabits",  134217728.0},
    /*  7 */ {L"Gigabytes", 1073741824.0},
    /*  8 */ {L"Terabits",  137438953472.0},
    /*  9 */ {L"Terabytes", 1099511627776.0},
    /* 10 */ {L"Petabits",  140737488355328.0},
    /* 11 */ {L"Petabytes", 1125899906842624.0},
    /* 12 */ {L"Exabits",   1.4411518807585587e+17},
    /* 13 */ {L"Exabytes",  1.152921504606847e+18},
});

// 03. Density, in Grams/Cubic Centimeters.
constexpr auto kDensity = std::to_array<UnitEntry>({
    /*  0 */ {L"Grains/Gallon (UK)",      1.4253948343691203e-05},
    /*  1 */ {L"Grains/Gallon (US)",      1.7118011571775823e-05},
    /*  2 */ {L"Grams/Cubic Centimeters", 1.0},
    /*  3 */ {L"Grams/Liter",             0.001},
    /*  4 */ {L"Grams/Milliliters",       1.0},
    /*  5 */ {L"Kilograms/Cubic Meters",  0.001},
    /*  6 */ {L"Kilograms/Liter",         1.0},
    /*  7 */ {L"Megagrams/Cubic Meter",   1.0},
    /*  8 */ {L"Milligrams/Milliliter",   0.001},
    /*  9 */ {L"Milligrams/Liter",        1e-06},
    /* 10 */ {L"Ounches/Cubic Inch",      1.729994044},
    /* 11 */ {L"Ounches/Gallon (UK)",     0.006236023},
    /* 12 */ {L"Ounches/Gallon (US)",     0.007489152},
    /* 13 */ {L"Pounds/Cubic Inch",       27.679904},
    /* 14 */ {L"Pounds/Cubic Foot",       0.016018463},
    /* 15 */ {L"Pounds/Gallon (UK)",      0.099776373},
    /* 16 */ {L"Pounds/Gallon (US)",      0.119826427},
    /* 17 */ {L"Slugs/Cubic Foot",        0.51531788206},
    /* 18 */ {L"Tonnes/Cubic Meter",      1.0},
    /* 19 */ {L"Tons (UK)/Cubic Yard",    1.328939184},
    /* 20 */ {L"Tons (US)/Cubic Yard",    1.186552843},
});

// 04. Energy (Work), in Joules.
constexpr auto kEnergy = std::to_array<UnitEntry>({
    /*  0 */ {L"BTUs",              1055.056},
    /*  1 */ {L"Calories",          4.1868},
    /*  2 */ {L"Calories (Food)",   4186.0},
    /*  3 */ {L"Electron Volts",    1.60219e-19},
    /*  4 */ {L"Ergs",              1e-07},
    /*  5 */ {L"Foot Pounds-Force", 1.355817},
    /*  6 */ {L"Foot Poundals",     0.04214},
    /*  7 */ {L"Gigajoules",        1000000000.0},
    /*  8 */ {L"Horsepower Hours",  2684520.0},
    /*  9 */ {L"Joules",            1.0},
    /* 10 */ {L"Kilocalories",      4186.8},
    /* 11 */ {L"Kilojoules",        1000.0},
    /* 12 */ {L"Kilowatt Hours",    3600000.0},
    /* 13 */ {L"Megajoules",        1000000.0},
    /* 14 */ {L"Newton Meters",     1.0},
    /* 15 */ {L"Therms",            105500000.0},
    /* 16 */ {L"Watt Seconds",      1.0},
    /* 17 */ {L"Watt Hours",        3600.0},
});

// 05. Flow Rate (By Volume), in Cubic Metres/Second.
constexpr auto kFlowRate = std::to_array<UnitEntry>({
    /*  0 */ {L"Barrels/Day",         1.840130728333333e-06},
    /*  1 */ {L"Barrels/Hour",        4.416313748e-05},
    /*  2 */ {L"Barrels/Minute",      0.0026497882488},
    /*  3 */ {L"Cubic Feet/Hour",     7.86579072e-06},
    /*  4 */ {L"Cubic Feet/Minute",   0.0004719474432},
    /*  5 */ {L"Cubic Inches/Minute", 2.731177333333333e-07},
    /*  6 */ {L"Cubic Inches/Second", 1.6387064e-05},
    /*  7 */ {L"Cubic Metres/Day",    1.1574074074074073e-05},
    /*  8 */ {L"Cubic Metres/Hour",   0.0002777777777777778},
    /*  9 */ {L"Cubic Metres/Minute", 0.016666666666666666},
    /* 10 */ {L"Cubic Metres/Second", 1.0},
    /* 11 */ {L"Cubic Yards/Day",     8.84901456e-06},
    /* 12 */ {L"Cubic Yards/Hour",    0.00021237634944},
    /* 13 */ {L"Gallons(UK)/Day",     5.26167824074074e-08},
    /* 14 */ {L"Gallons(UK)/Hour",    1.262802777777778e-06},
    /* 15 */ {L"Gallons(UK)/Minute",  7.576816666666667e-05},
    /* 16 */ {L"Gallons(US)/Day",     4.38126383888889e-08},
    /* 17 */ {L"Gallons(US)/Hour",    1.05150327333333e-06},
    /* 18 */ {L"Gallons(US)/Minute",  6.30901964e-05},
    /* 19 */ {L"Litres/Day",          1.1574074074074074e-08},
    /* 20 */ {L"Litres/Hour",         2.7777777777777776e-07},
    /* 21 */ {L"Litres/Minute",       1.6666666666666667e-05},
    /* 22 */ {L"Litres/Second",       0.001},
});

// 06. Force, in Newtons.
constexpr auto kForce = std::to_array<UnitEntry>({
    /*  0 */ {L"Dynes",           1e-05},
    /*  1 */ {L"Kilograms Force", 9.80665},
    /*  2 */ {L"Kilonewtons",     1000.0},
    /*  3 */ {L"Kips",            4448.222},
    /*  4 */ {L"Meganewtons",     1000000.0},
    /*  5 */ {L"Newtons",         1.0},
    /*  6 */ {L"Poundals",        0.138255},
    /*  7 */ {L"Pounds Force",    4.448222},
    /*  8 */ {L"Tonnes Force",    9806.65},
    /*  9 */ {L"Tons Force (UK)", 9964.016},
    /* 10 */ {L"Tons Force (US)", 8896.443},
});

// 07. Length, in Meters.
constexpr auto kLength = std::to_array<UnitEntry>({
    /*  0 */ {L"AU",          149598550000.0},
    /*  1 */ {L"Barleycorns", 0.008467},
    /*  2 */ {L"Cables",      182.88},
    /*  3 */ {L"Centimeters", 0.01},
    /*  4 */ {L"Chains",      20.1168},
    /*  5 */ {L"Decimeters",  0.1},
    /*  6 */ {L"Ells(UK)",    0.875},
    /*  7 */ {L"Ems(pica)",   0.0042333},
    /*  8 */ {L"Fathoms",     1.8288},
    /*  9 */ {L"Feet",        0.3048},
    /* 10 */ {L"Furlongs",    201.168},
    /* 11 */ {L"Hands",       0.106},
    /* 12 */ {L"Hectometers", 100.0},
    /* 13 */ {L"Inches",      0.0254},
    /* 14 */ {L"Kilometers",  1000.0},
    /* 15 */ {L"Light years", 9460500000000000.0},
    /* 16 */ {L"Meters",      1.0},
    /* 17 */ {L"Micrometers", 1e-06},
    /* 18 */ {L"Miles",       1609.344},
    /* 19 */ {L"Millimeters", 0.001},
    /* 20 */ {L"Nanometers",  1e-09},
    /* 21 */ {L"Parsecs",     3.085677e+16},
    /* 22 */ {L"Picometers",  1e-12},
    /* 23 */ {L"Yards",       0.9144},
});

// 08. Mass and Weight, in Kilograms.
constexpr auto kMassAndWeight = std::to_array<UnitEntry>({
    /*  0 */ {L"Carats",        0.0002},
    /*  1 */ {L"Grains",        6.479891e-05},
    /*  2 */ {L"Grams",         0.001},
    /*  3 */ {L"Hudredweights", 45.359237},
    /*  4 */ {L"Kilograms",     1.0},
    /*  5 */ {L"Ounces",        0.028349523125},
    /*  6 */ {L"Ounces(troy)",  0.0311034768},
    /*  7 */ {L"Pounds",        0.45359237},
    /*  8 */ {L"Pounds(troy)",  0.3732417216},
    /*  9 */ {L"Solar masses",  1.989e+30},
    /* 10 */ {L"Slugs",         14.593903},
    /* 11 */ {L"Stones",        6.35029318},
    /* 12 */ {L"Tons",          907.18474},
    /* 13 */ {L"Tonnes",        1000.0},
});

// 09. Power, in Watts.
constexpr auto kPower = std::to_array<UnitEntry>({
    /*  0 */ {L"BTU/Hour",               0.293071},
    /*  1 */ {L"BTU/Minute",             17.584267},
    /*  2 */ {L"BTU/Second",             1055.056},
    /*  3 */ {L"Calories/Hour",          0.001163000308},
    /*  4 */ {L"Calories/Minute",        0.069780018},
    /*  5 */ {L"Calories/Second",        4.18760469},
    /*  6 */ {L"Gigawatts",              1000000000.0},
    /*  7 */ {L"Horsepowers (electric)", 746.0},
    /*  8 */ {L"Horsepowers (metric)",   735.499},
    /*  9 */ {L"Watts",                  1.0},
    /* 10 */ {L"Joules/Hour",            0.0002777777777777778},
    /* 11 */ {L"Joules/Minute",          0.016666666666666666},
    /* 12 */ {L"Joules/Second",          1.0},
    /* 13 */ {L"Kilocalories/Hour",      1.162993545},
    /* 14 */ {L"Kilocalories/Minute",    69.78367062},
    /* 15 */ {L"Kilocalories/Second",    4166.666667},
    /* 16 */ {L"Kilowatts",              1000.0},
    /* 17 */ {L"Megawatts",              1000000.0},
});

// 10. Pressure and Stress, in Pascals.
constexpr auto kPressureAndStress = std::to_array<UnitEntry>({
    /*  0 */ {L"Atmospheres",            101325.0},
    /*  1 */ {L"Bars",                   100000.0},
    /*  2 */ {L"Centimeters Mercury",    1333.22},
    /*  3 */ {L"Centimeters Water",      98.0665},
    /*  4 */ {L"Feet/Water",             2989.06692},
    /*  5 */ {L"Hectopascals",           100.0},
    /*  6 */ {L"Inches/Water",           249.08891},
    /*  7 */ {L"Inches/Mercury",         3386.388},
    /*  8 */ {L"Kilogram/Sq Centimeter", 98066.5},
    /*  9 */ {L"Kilogram/Sq Meter",      9.80665},
    /* 10 */ {L"Kilopascals",            1000.0},
    /* 11 */ {L"Kips/Sq Inch",           6894760.0},
    /* 12 */ {L"Meganewtons/Sq Meter",   1000000.0},
    /* 13 */ {L"Meters/Water",           9806.65},
    /* 14 */ {L"Millibars",              100.0},
    /* 15 */ {L"Millimeters/Mercury",    133.322},
    /* 16 */ {L"Millimeters/Water",      9.80665},
    /* 17 */ {L"Newtons/Sq Centimeter",  10000.0},
    /* 18 */ {L"Newtons/Sq Meter",       1.0},
    /* 19 */ {L"Newtons/Sq Millimeter",  1000000.0},
    /* 20 */ {L"Pascals",                1.0},
    /* 21 */ {L"Pounds/Sq Foot",         47.88},
    /* 22 */ {L"Pounds/Sq Inch",         6894.757},
    /* 23 */ {L"Poundals/Sq Foot",       1.44816},
    /* 24 */ {L"Tons (UK)/Sq Foot",      107251.0},
    /* 25 */ {L"Tons (US)/Sq Foot",      95760.0},
});

// 11. Speed, in Meters/Second.
constexpr auto kSpeed = std::to_array<UnitEntry>({
    /*  0 */ {L"Centimeters/Minute", 0.00016666666666666666},
    /*  1 */ {L"Feet/Hour",          8.466683600033866e-05},
    /*  2 */ {L"Feet/Minute",        0.00508},
    /*  3 */ {L"Feet/Second",        0.3048},
    /*  4 */ {L"Inches/Minute",      0.0004233341800016934},
    /*  5 */ {L"Kilometers/Hour",    0.2777777777777778},
    /*  6 */ {L"Kilometers/Second",  1000.0},
    /*  7 */ {L"Knots",              0.514444},
    /*  8 */ {L"Mach",               340.2933},
    /*  9 */ {L"Meters/Hour",        0.0002777777777777778},
    /* 10 */ {L"Meters/Minute",      0.016666666666666666},
    /* 11 */ {L"Meters/Second",      1.0},
    /* 12 */ {L"Miles/Hour",         0.44704},
    /* 13 */ {L"Miles/Minute",       26.8224},
    /* 14 */ {L"Miles/Second",       1609.344},
    /* 15 */ {L"Speed Of Light",     299790000.0},
    /* 16 */ {L"Yards/Hour",         0.000254000508001016},
    /* 17 */ {L"Yards/Minute",       0.01524},
    /* 18 */ {L"Yards/Second",       0.9144},
});

// 13. Torque, in Newton Metres.
constexpr auto kTorque = std::to_array<UnitEntry>({
    /*  0 */ {L"Gramf Cm",          9.80665e-05},
    /*  1 */ {L"Kgf Cm",            0.0980665},
    /*  2 */ {L"Kgf Metres",        9.80665},
    /*  3 */ {L"Kilonewton Metres", 1000.0},
    /*  4 */ {L"Lbf Feet",          1.3558179483314003},
    /*  5 */ {L"Lbf Inches",        0.1129848290276167},
    /*  6 */ {L"Newton Metres",     1.0},
    /*  7 */ {L"Ozf Inches",        0.0070615518142260435},
    /*  8 */ {L"Poundal Feet",      0.0421401100938048},
    /*  9 */ {L"Ton(UK)f Feet",     3037.032204262337},
    /* 10 */ {L"Ton(US)f Feet",     2711.635896662801},
    /* 11 */ {L"Tonnef Metres",     9806.65},
});

// 14. Volume, in Liters.
constexpr auto kVolume = std::to_array<UnitEntry>({
    /*  0 */ {L"Barrels(Oil)",         158.987294928},
    /*  1 */ {L"Bushels(UK)",          36.36872},
    /*  2 */ {L"Bushels(US)",          35.23907016688},
    /*  3 */ {L"Cubic Centimeters",    0.001},
    /*  4 */ {L"Cubic Feet",           28.316846592},
    /*  5 */ {L"Cubic Inches",         0.016387064},
    /*  6 */ {L"Cubic Meters",         1000.0},
    /*  7 */ {L"Cubic Millimeters",    1e-06},
    /*  8 */ {L"Cubic Yards",          764.554857984},
    /*  9 */ {L"Gallons (UK)",         4.54609},
    /* 10 */ {L"Gallons, dry (US)",    4.40488377086},
    /* 11 */ {L"Gallons, liquid (US)", 3.785411784},
    /* 12 */ {L"Liters",               1.0},
    /* 13 */ {L"Milliliters",          0.001},
    /* 14 */ {L"Pints (UK)",           0.56826125},
    /* 15 */ {L"Pints, dry (US)",      0.5506104713575},
    /* 16 */ {L"Pints, liquid (US)",   0.473176473},
    /* 17 */ {L"Quarts (UK)",          1.1365225},
    /* 18 */ {L"Quarts, dry (US)",     1.101220942715},
    /* 19 */ {L"Quarts, liquid (US)",  0.946352946},
});

// 12. Temperature: whole conversions, their formulas are in UnitConversion.cpp.
constexpr auto kTemperature = std::to_array<UnitEntry>({
    /*  0 */ {L"Celsius -> Fahrenheit", 1.0},
    /*  1 */ {L"Celsius -> Kelvin",     1.0},
    /*  2 */ {L"Fahrenheit -> Celsius", 1.0},
    /*  3 */ {L"Fahrenheit -> Kelvin",  1.0},
    /*  4 */ {L"Kelvin -> Celsius",     1.0},
    /*  5 */ {L"Kelvin -> Fahrenheit",  1.0},
});

// clang-format on

}  // namespace

// clang-format off
constexpr std::array<UnitCategory, kCategoryCount> kUnitCategories{{
    /*  0 */ {L"01. Area",                    CategoryKind::Factors,      kArea},
    /*  1 */ {L"02. Bit and Bytes",           CategoryKind::Factors,      kBitsAndBytes},
    /*  2 */ {L"03. Density",                 CategoryKind::Factors,      kDensity},
    /*  3 */ {L"04. Energy (Work)",           CategoryKind::Factors,      kEnergy},
    /*  4 */ {L"05. Flow Rate (By Volume)",   CategoryKind::Factors,      kFlowRate},
    /*  5 */ {L"06. Force",                   CategoryKind::Factors,      kForce},
    /*  6 */ {L"07. Length",                  CategoryKind::Factors,      kLength},
    /*  7 */ {L"08. Mass and Weight",         CategoryKind::Factors,      kMassAndWeight},
    /*  8 */ {L"09. Power",                   CategoryKind::Factors,      kPower},
    /*  9 */ {L"10. Pressure and Stress",     CategoryKind::Factors,      kPressureAndStress},
    /* 10 */ {L"11. Speed",                   CategoryKind::Factors,      kSpeed},
    /* 11 */ {L"12. Temperature",             CategoryKind::Temperature,  kTemperature},
    /* 12 */ {L"13. Torque",                  CategoryKind::Factors,      kTorque},
    /* 13 */ {L"14. Volume",                  CategoryKind::Factors,      kVolume},
    /* 14 */ {L"15. User Define",             CategoryKind::UserDefined,  {}},
}};
// clang-format on

static_assert(std::ranges::all_of(kUnitCategories, [](const UnitCategory& category) {
  return category.units.size() <= std::size_t{kMaxUnits};
}));

const UnitCategory& CategoryOf(int code) {
  return kUnitCategories[static_cast<std::size_t>(code)];
}

}  // namespace vexa

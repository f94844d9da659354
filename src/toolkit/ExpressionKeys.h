#pragma once

#include "toolkit/Key.h"

/// The keys that the keypads of all expressions have in common, each in its place, so that a hand
/// finds it on every screen.
namespace vexa::expression_keys {

using enum KeyRole;

// Where keys are shown (on the unshifted and on the shifted layer) and enabled.
inline constexpr KeyPlaces kEverywhere{};
// Shown in every base, inert in the integer bases.
inline constexpr KeyPlaces kDecimal{kAllBases, kAllBases, kDecimalBase};
inline constexpr KeyPlaces kDecimalUnshifted{kAllBases, kNoBase, kDecimalBase};
inline constexpr KeyPlaces kDecimalShifted{kNoBase, kAllBases, kDecimalBase};
// The same, under a hexadecimal digit.
inline constexpr BaseSet kNotHex = Bases({BaseType::Dec, BaseType::Bin, BaseType::Oct});
inline constexpr KeyPlaces kUnderDigit{kNotHex, kNotHex, kDecimalBase};
inline constexpr KeyPlaces kUnderDigitUnshifted{kNotHex, kNoBase, kDecimalBase};
inline constexpr KeyPlaces kUnderDigitShifted{kNoBase, kNotHex, kDecimalBase};
// Under a bitwise operator in the integer bases.
inline constexpr KeyPlaces kUnderBitwiseUnshifted{kDecimalBase, kNoBase, kDecimalBase};
inline constexpr KeyPlaces kUnderBitwiseShifted{kNoBase, kDecimalBase, kDecimalBase};
// A shift stands on the shifted layer, and on both in the integer bases.
inline constexpr KeyPlaces kShift{kIntegerBases, kAllBases, kAllBases};
inline constexpr KeyPlaces kOctalDigit{kAllBases, kAllBases,
                                       Bases({BaseType::Dec, BaseType::Hex, BaseType::Oct})};
inline constexpr KeyPlaces kDecimalDigit{kAllBases, kAllBases,
                                         Bases({BaseType::Dec, BaseType::Hex})};

inline constexpr std::wstring_view kBackspaceHelp =
    L"Delete the character before the caret, or the selection";

// clang-format off
inline constexpr Key kKeys[] = {
    // caption, role, row, column, help, what it inserts, where it is shown and enabled, face
    {L"DEL",   Editing,     0, 2, L"Delete the character after the caret, or the selection", {}, kEverywhere, {}, 1, true},
    {L"CLR",   Editing,     0, 3, L"Clear the line", {}, kEverywhere},
    {L"PB",    Command,     0, 4, L"Recall an earlier entry", {}, kEverywhere},
    {L"DEG",   Command,     0, 5, L"Angles are in degrees; press for radians", {}, kEverywhere},
    {L"RAD",   Command,     0, 5, L"Angles are in radians; press for degrees", {}, kEverywhere},

    {L"Shift", Shift,       1, 0, L"Show the second functions", {}, kDecimalUnshifted},
    {L"Shift", ShiftActive, 1, 0, L"Show the first functions", {}, kDecimalShifted},
    {L"SIN",   Function,    1, 1, L"Sine", FunctionKey(L"sin()"), kUnderDigitUnshifted},
    {L"ASIN",  Function,    1, 1, L"Inverse sine", FunctionKey(L"asin()"), kUnderDigitShifted},
    {L"COS",   Function,    1, 2, L"Cosine", FunctionKey(L"cos()"), kUnderDigitUnshifted},
    {L"ACOS",  Function,    1, 2, L"Inverse cosine", FunctionKey(L"acos()"), kUnderDigitShifted},
    {L"TAN",   Function,    1, 3, L"Tangent", FunctionKey(L"tan()"), kDecimalUnshifted},
    {L"ATAN",  Function,    1, 3, L"Inverse tangent", FunctionKey(L"atan()"), kDecimalShifted},
    {L"ABS()", Function,    1, 4, L"Absolute value", FunctionKey(L"abs()"), kDecimalUnshifted},
    {L"INT()", Function,    1, 4, L"Integer part", FunctionKey(L"int()"), kDecimalShifted},
    {L"Pi",    Function,    1, 5, L"The number pi, 3.14159...", PlainKey(L"Pi"), kUnderBitwiseUnshifted},
    {L"X!",    Function,    1, 5, L"Factorial", OperatorKey(L"!", L"(", L")!"), kUnderBitwiseShifted, L"x!"},

    {L"Mac",   Command,     2, 0, L"Insert a macro", {}, kDecimal},
    {L"SINH",  Function,    2, 1, L"Hyperbolic sine", FunctionKey(L"sinh()"), kUnderDigit},
    {L"COSH",  Function,    2, 2, L"Hyperbolic cosine", FunctionKey(L"cosh()"), kUnderDigit},
    {L"TANH",  Function,    2, 3, L"Hyperbolic tangent", FunctionKey(L"tanh()"), kUnderBitwiseUnshifted},
    {L"<<",    Operator,    2, 3, L"Shift left by a number of bits", OperatorKey(L"<<", L"(", L")<<"), kShift},
    {L"LOG",   Function,    2, 4, L"Logarithm to base 10", FunctionKey(L"log()"), kUnderBitwiseUnshifted},
    {L"10^X",  Function,    2, 4, L"Ten to the power of x", OperatorKey(L"10^", L"10^(", L")"), kUnderBitwiseShifted, L"10{x}"},
    {L"LN",    Function,    2, 5, L"Natural logarithm", FunctionKey(L"ln()"), kUnderBitwiseUnshifted},
    {L"e^X",   Function,    2, 5, L"e to the power of x", FunctionKey(L"exp()"), kUnderBitwiseShifted, L"e{x}"},

    {L"SQRT",  Function,    3, 1, L"Square root", FunctionKey(L"sqrt()"), kUnderDigitUnshifted},
    {L"XthR",  Function,    3, 1, L"The n-th root: the number, the key, then n", RootKey(), kUnderDigitShifted, L"{n}√"},
    {L"X^2",   Function,    3, 2, L"Square", OperatorKey(L"^2", L"(", L")^2"), kUnderDigitUnshifted, L"x{2}"},
    {L"1/X",   Function,    3, 2, L"Reciprocal", OperatorKey(L"1/", L"1/(", L")"), kUnderDigitShifted, L"1/x"},
    {L"Y^X",   Function,    3, 3, L"y to the power of x", OperatorKey(L"^", L"(", L")^"), kUnderBitwiseUnshifted, L"y{x}"},
    {L">>",    Operator,    3, 3, L"Shift right by a number of bits", OperatorKey(L">>", L"(", L")>>"), kShift},
    {L"nCr",   Function,    3, 4, L"Combinations of r out of n", OperatorKey(L"C", L"(", L")C"), kUnderBitwiseUnshifted},
    {L"nPr",   Function,    3, 4, L"Permutations of r out of n", OperatorKey(L"P", L"(", L")P"), kUnderBitwiseShifted},
    {L"%",     Operator,    3, 5, L"Remainder of a division", OperatorKey(L"%", L"(", L")%"), kUnderBitwiseUnshifted},
    {L"FRAC",  Function,    3, 5, L"Fractional part", FunctionKey(L"frac()"), kUnderBitwiseShifted},

    {L"7",     Digit,       4, 1, L"", PlainKey(L"7"), kOctalDigit},
    {L"8",     Digit,       4, 2, L"", PlainKey(L"8"), kDecimalDigit},
    {L"9",     Digit,       4, 3, L"", PlainKey(L"9"), kDecimalDigit},
    {L"(",     Operator,    4, 4, L"Opening parenthesis", PlainKey(L"("), kEverywhere},
    {L")",     Operator,    4, 5, L"Closing parenthesis", PlainKey(L")"), kEverywhere},

    {L"(...)", Function,    5, 0, L"Put the selection in parentheses", FunctionKey(L"()"), kEverywhere},
    {L"4",     Digit,       5, 1, L"", PlainKey(L"4"), kOctalDigit},
    {L"5",     Digit,       5, 2, L"", PlainKey(L"5"), kOctalDigit},
    {L"6",     Digit,       5, 3, L"", PlainKey(L"6"), kOctalDigit},
    {L"*",     Operator,    5, 4, L"Multiply", OperatorKey(L"*", L"(", L")*"), kEverywhere},
    {L"/",     Operator,    5, 5, L"Divide", OperatorKey(L"/", L"(", L")/"), kEverywhere},

    {L"Exp",   Digit,       6, 0, L"Exponent: times ten to the power of", PlainKey(L"E"), kDecimal},
    {L"1",     Digit,       6, 1, L"", PlainKey(L"1"), kEverywhere},
    {L"2",     Digit,       6, 2, L"", PlainKey(L"2"), kOctalDigit},
    {L"3",     Digit,       6, 3, L"", PlainKey(L"3"), kOctalDigit},

    {L"00",    Digit,       7, 0, L"", PlainKey(L"00"), kEverywhere},
    {L"0",     Digit,       7, 1, L"", PlainKey(L"0"), kEverywhere},
    {L".",     Digit,       7, 2, L"Decimal point", PlainKey(L"."), kDecimal},
};
// clang-format on

}  // namespace vexa::expression_keys

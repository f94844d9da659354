#include "app/CalculatorKeypad.h"

#include "toolkit/ExpressionKeys.h"
#include "toolkit/MergeKeys.h"

namespace vexa {
namespace {

using namespace expression_keys;
using enum BaseType;

constexpr KeyPlaces OnlyIn(BaseType base) {
  return {Bases({base}), Bases({base}), kAllBases};
}
constexpr KeyPlaces kBitwise{kIntegerBases, kIntegerBases, kAllBases};
constexpr KeyPlaces kHexDigit = OnlyIn(Hex);

// clang-format off
constexpr Key kOwnKeys[] = {
    // caption, role, row, column, help, what it inserts, where it is shown and enabled, face
    {L"DEC",   Command,     0, 0, L"The number base; press to choose another", {}, OnlyIn(Dec)},
    {L"HEX",   Command,     0, 0, L"The number base; press to choose another", {}, OnlyIn(Hex)},
    {L"BIN",   Command,     0, 0, L"The number base; press to choose another", {}, OnlyIn(Bin)},
    {L"OCT",   Command,     0, 0, L"The number base; press to choose another", {}, OnlyIn(Oct)},
    {L"BS",    Editing,     0, 1, kBackspaceHelp, {}, kEverywhere, {}, 1, true},
    {L"E",     Digit,       1, 1, L"Hexadecimal digit E, 14", PlainKey(L"E"), kHexDigit},
    {L"F",     Digit,       1, 2, L"Hexadecimal digit F, 15", PlainKey(L"F"), kHexDigit},
    {L"AND",   Operator,    1, 5, L"Bitwise and", OperatorKey(L" AND ", L"(", L") AND "), kBitwise},
    {L"C",     Digit,       2, 1, L"Hexadecimal digit C, 12", PlainKey(L"C"), kHexDigit},
    {L"D",     Digit,       2, 2, L"Hexadecimal digit D, 13", PlainKey(L"D"), kHexDigit},
    {L"XOR",   Operator,    2, 4, L"Bitwise exclusive or", OperatorKey(L" XOR ", L"(", L") XOR "), kBitwise},
    {L"XNOR",  Operator,    2, 5, L"Bitwise equivalence, the complement of exclusive or", OperatorKey(L" XNOR ", L"(", L") XNOR "), kBitwise},
    {L"Cnv",   Command,     3, 0, L"Convert units", {}, kDecimal},
    {L"A",     Digit,       3, 1, L"Hexadecimal digit A, 10", PlainKey(L"A"), kHexDigit},
    {L"B",     Digit,       3, 2, L"Hexadecimal digit B, 11", PlainKey(L"B"), kHexDigit},
    {L"OR",    Operator,    3, 4, L"Bitwise or", OperatorKey(L" OR ", L"(", L") OR "), kBitwise},
    {L"NOT",   Operator,    3, 5, L"Bitwise complement", OperatorKey(L" NOT ", L"NOT(", L")"), kBitwise},
    {L"MEM",   Command,     4, 0, L"Memory: add, subtract, recall, clear, variables", {}, kEverywhere},
    {L"+",     Operator,    6, 4, L"Add", OperatorKey(L"+", L"", L"+"), kEverywhere},
    {L"-",     Operator,    6, 5, L"Subtract", OperatorKey(L"-", L"", L"-"), kEverywhere},
    {L"=",     Equals,      7, 3, L"Evaluate the expression (Enter)", {}, kEverywhere, {}, 3},
};
// clang-format on

constexpr auto kAllKeys = MergeKeys(expression_keys::kKeys, kOwnKeys);

}  // namespace

std::span<const Key> CalculatorKeys() {
  return kAllKeys;
}

}  // namespace vexa

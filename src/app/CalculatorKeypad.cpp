#include "app/CalculatorKeypad.h"

#include <algorithm>

namespace vexa {
namespace {

using enum KeyRole;

// Row 0, column 0 holds the base's name.
// clang-format off
constexpr Key kKeys[] = {
    // caption, role, row, column, columns, what it inserts, auto-repeat
    {L"BS",    Editing,  0, 1, 1, {}, true},
    {L"DEL",   Editing,  0, 2, 1, {}, true},
    {L"CLR",   Editing,  0, 3},
    {L"PB",    Command,  0, 4},
    {L"DEG",   Command,  0, 5},
    {L"RAD",   Command,  0, 5},

    {L"SIN",   Function, 1, 1, 1, FunctionKey(L"sin()")},
    {L"COS",   Function, 1, 2, 1, FunctionKey(L"cos()")},
    {L"TAN",   Function, 1, 3, 1, FunctionKey(L"tan()")},
    {L"ABS()", Function, 1, 4, 1, FunctionKey(L"abs()")},
    {L"Pi",    Function, 1, 5, 1, PlainKey(L"Pi")},

    {L"SINH",  Function, 2, 1, 1, FunctionKey(L"sinh()")},
    {L"COSH",  Function, 2, 2, 1, FunctionKey(L"cosh()")},
    {L"TANH",  Function, 2, 3, 1, FunctionKey(L"tanh()")},
    {L"LOG",   Function, 2, 4, 1, FunctionKey(L"log()")},
    {L"LN",    Function, 2, 5, 1, FunctionKey(L"ln()")},

    {L"SQRT",  Function, 3, 1, 1, FunctionKey(L"sqrt()")},
    {L"X^2",   Function, 3, 2, 1, OperatorKey(L"^2", L"(", L")^2")},
    {L"Y^X",   Function, 3, 3, 1, OperatorKey(L"^", L"(", L")^")},
    {L"nCr",   Function, 3, 4, 1, OperatorKey(L"C", L"(", L")C")},
    {L"%",     Operator, 3, 5, 1, OperatorKey(L"%", L"(", L")%")},

    {L"7",     Digit,    4, 1, 1, PlainKey(L"7")},
    {L"8",     Digit,    4, 2, 1, PlainKey(L"8")},
    {L"9",     Digit,    4, 3, 1, PlainKey(L"9")},
    {L"(",     Operator, 4, 4, 1, PlainKey(L"(")},
    {L")",     Operator, 4, 5, 1, PlainKey(L")")},

    {L"(...)", Function, 5, 0, 1, FunctionKey(L"()")},
    {L"4",     Digit,    5, 1, 1, PlainKey(L"4")},
    {L"5",     Digit,    5, 2, 1, PlainKey(L"5")},
    {L"6",     Digit,    5, 3, 1, PlainKey(L"6")},
    {L"*",     Operator, 5, 4, 1, OperatorKey(L"*", L"(", L")*")},
    {L"/",     Operator, 5, 5, 1, OperatorKey(L"/", L"(", L")/")},

    {L"Exp",   Digit,    6, 0, 1, PlainKey(L"E")},
    {L"1",     Digit,    6, 1, 1, PlainKey(L"1")},
    {L"2",     Digit,    6, 2, 1, PlainKey(L"2")},
    {L"3",     Digit,    6, 3, 1, PlainKey(L"3")},
    {L"+",     Operator, 6, 4, 1, OperatorKey(L"+", L"", L"+")},
    {L"-",     Operator, 6, 5, 1, OperatorKey(L"-", L"", L"-")},

    {L"00",    Digit,    7, 0, 1, PlainKey(L"00")},
    {L"0",     Digit,    7, 1, 1, PlainKey(L"0")},
    {L".",     Digit,    7, 2, 1, PlainKey(L".")},
    {L"=",     Equals,   7, 3, 3},
};
// clang-format on

/// A key that a condition governs; keys that are in no table are always shown and enabled.
struct KeyCondition {
  std::wstring_view caption;
  bool (*holds)(const CalculatorKeypadState&);
};

bool IsDegrees(const CalculatorKeypadState& state) {
  return state.angleType == AngleType::Degrees;
}
bool IsRadians(const CalculatorKeypadState& state) {
  return !IsDegrees(state);
}
bool HasHistory(const CalculatorKeypadState& state) {
  return !state.historyIsEmpty;
}

constexpr KeyCondition kShownWhen[] = {{L"DEG", IsDegrees}, {L"RAD", IsRadians}};
constexpr KeyCondition kEnabledWhen[] = {{L"PB", HasHistory}};

bool Holds(std::span<const KeyCondition> conditions, const Key& key,
           const CalculatorKeypadState& state) {
  return std::ranges::all_of(conditions, [&](const KeyCondition& condition) {
    return condition.caption != key.caption || condition.holds(state);
  });
}

}  // namespace

std::span<const Key> CalculatorKeys() {
  return kKeys;
}

bool IsKeyShown(const Key& key, const CalculatorKeypadState& state) {
  return Holds(kShownWhen, key, state);
}

bool IsKeyEnabled(const Key& key, const CalculatorKeypadState& state) {
  return Holds(kEnabledWhen, key, state);
}

std::wstring_view BaseName(BaseType base) {
  switch (base) {
    case BaseType::Hex:
      return L"HEX";
    case BaseType::Bin:
      return L"BIN";
    case BaseType::Oct:
      return L"OCT";
    default:
      return L"DEC";
  }
}

}  // namespace vexa

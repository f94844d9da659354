#include "plotter/PlotterKeypad.h"

#include "toolkit/ExpressionKeys.h"
#include "toolkit/MergeKeys.h"

namespace vexa {
namespace {

using namespace expression_keys;

// "+" and "-" put a selection in parentheses here; on the calculator they do not. Meant.
// clang-format off
constexpr Key kOwnKeys[] = {
    // caption, role, row, column, help, what it inserts, where it is shown and enabled, face
    {L"BS",    Editing,  0, 0, kBackspaceHelp, {}, kEverywhere, {}, 2, true},
    {L"X-Var", Digit,    3, 0, L"The variable x", PlainKey(L"x"), kEverywhere},
    {L"M",     Command,  4, 0, L"Recall a memory variable, into the box that had the focus last", {}, kEverywhere},
    {L"+",     Operator, 6, 4, L"Add", OperatorKey(L"+", L"(", L")+"), kEverywhere},
    {L"-",     Operator, 6, 5, L"Subtract", OperatorKey(L"-", L"(", L")-"), kEverywhere},
    {L"Plot",  Equals,   7, 3, L"Draw the graph (Enter)", {}, kEverywhere, {}, 3},
};
// clang-format on

constexpr auto kAllKeys = MergeKeys(expression_keys::kKeys, kOwnKeys);

}  // namespace

std::span<const Key> PlotterKeys() {
  return kAllKeys;
}

}  // namespace vexa

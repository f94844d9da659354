#include "macros/MemoryVariables.h"
#include "terminal/CalculatorLines.h"
#include "terminal/Commands.h"
#include "terminal/Console.h"
#include "terminal/Json.h"
#include "terminal/NumberOptions.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Argument kSlot{.name = "N", .help = "A variable's number, 1 to 20"};
constexpr Argument kSlotOnly[] = {kSlot};
constexpr Argument kMaybeSlot[] = {
    {.name = "N", .help = "A variable's number, 1 to 20; without it, all are cleared", .least = 0}};
constexpr Argument kSlotAndValue[] = {
    kSlot, {.name = "EXPR", .help = "An expression", .kind = WordKind::Expression}};
constexpr Option kListOptions[] = {kJsonOption};

constexpr std::string_view kSetMore =
    "Examples:\n"
    "  vexa memory set 1 '2*pi'\n"
    "  vexa \"$(vexa memory get 1)/3\"\n";

constexpr std::string_view kNoSlot = "N must be a whole number from 1 to 20";

/// The index of the slot that is asked for; none: there is no such slot.
std::optional<int> SlotOf(const Given& given) {
  const auto number = WholeNumber(given.One("N"));
  if (!number || *number < 1 || *number > MemoryVariables::kCount) return std::nullopt;
  return *number - 1;
}

int List(const Given& given, Console& console) {
  const MemoryVariables variables(console.store);
  Json json;
  json.Begin('[');
  for (int i = 0; i < MemoryVariables::kCount; ++i) {
    json.Number(variables.Value(i));
    if (!given.Has("json")) console.out.Write(Printable(variables.Line(i)) + L"\n");
  }
  json.End(']');
  if (given.Has("json")) console.out.Write(json.Take());
  return kDone;
}

int Get(const Given& given, Console& console) {
  const auto slot = SlotOf(given);
  if (!slot) return console.RefuseUse(kNoSlot);
  NumberModes modes = StoredModes(console.store);
  modes.display = DisplayType::FloatingPoint;
  console.out.Write(Formatted(MemoryVariables(console.store).Value(*slot), modes) + L"\n");
  return kDone;
}

int Set(const Given& given, Console& console) {
  const auto slot = SlotOf(given);
  if (!slot) return console.RefuseUse(kNoSlot);
  NumberModes modes = StoredModes(console.store);
  const std::wstring expression = Wide(given.One("EXPR"));
  const LineAnswer answer = CalculatorLines(console.store, modes).Evaluate(expression);
  if (!answer.error.empty()) {
    console.ComplainAbout("", answer.error, expression, answer.place);
    return kFailed;
  }
  // A variable is decimal and without separators, however results are written.
  modes.display = DisplayType::FloatingPoint;
  modes.base = BaseType::Dec;
  MemoryVariables(console.store).Store(*slot, Formatted(answer.value, modes));
  return kDone;
}

int Clear(const Given& given, Console& console) {
  MemoryVariables variables(console.store);
  if (!given.Has("N")) {
    if (console.Confirms(MemoryVariables::kClearQuestion)) variables.ClearAll();
    return kDone;
  }
  const auto slot = SlotOf(given);
  if (!slot) return console.RefuseUse(kNoSlot);
  variables.Store(*slot, L"0");
  return kDone;
}

}  // namespace

const Command kMemoryListCommand{.name = "memory list",
                                 .summary = "Lists the memory variables",
                                 .arguments = {},
                                 .options = kListOptions,
                                 .more = "",
                                 .run = List};
const Command kMemoryGetCommand{.name = "memory get",
                                .summary = "Writes a memory variable as an expression takes it",
                                .arguments = kSlotOnly,
                                .options = {},
                                .more = "",
                                .run = Get};
const Command kMemorySetCommand{.name = "memory set",
                                .summary = "Keeps the value of an expression in a memory variable",
                                .arguments = kSlotAndValue,
                                .options = {},
                                .more = kSetMore,
                                .run = Set};
const Command kMemoryClearCommand{
    .name = "memory clear",
    .summary = "Sets memory variables to 0; asks first, on a terminal",
    .arguments = kMaybeSlot,
    .options = {},
    .more = "",
    .run = Clear};

}  // namespace vexa::terminal

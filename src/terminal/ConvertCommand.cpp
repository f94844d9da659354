#include "terminal/Commands.h"
#include "terminal/Console.h"
#include "terminal/Json.h"
#include "terminal/LineReader.h"
#include "terminal/NumberOptions.h"
#include "terminal/Texts.h"
#include "terminal/UnitSearch.h"

namespace vexa::terminal {
namespace {

constexpr Argument kArguments[] = {
    {.name = "VALUE",
     .help = "A number; \"-\" reads conversions from the standard input",
     .least = 0},
    {.name = "FROM", .help = "The unit of the value", .kind = WordKind::Unit, .least = 0},
    {.name = "TO", .help = "The unit to convert to", .kind = WordKind::Unit, .least = 0},
};
constexpr Option kOptions[] = {
    {.name = "list", .letter = 'l', .value = "", .help = "Lists all units by category"},
    kJsonOption,
};
constexpr std::string_view kMore =
    "The beginning of a unit's name is enough where only one unit begins so. The user's own\n"
    "conversions are there too. A line of the standard input is \"12.5 Kilometers to Miles\", or "
    "the\n"
    "three words separated by tabs; it gives one line.\n"
    "\n"
    "Examples:\n"
    "  vexa convert 12.5 Kilometers Miles\n"
    "  vexa convert 100 celsius fahr\n"
    "  vexa convert 3 'square f' 'square m'     says which units that may be\n";

void List(Console& console) {
  UserConversions users(console.store);
  users.Load();
  for (const UnitCategory& category : kUnitCategories) {
    console.out.Write(std::wstring(category.name) + L"\n");
    for (const UnitEntry& unit : category.units) {
      console.out.Write(L"  " + std::wstring(unit.name) + L"\n");
    }
    if (category.kind != CategoryKind::UserDefined) continue;
    for (int i = 0; i < users.Count(); ++i) {
      console.out.Write(L"  " + Printable(users.At(i).name) + L"\n");
    }
  }
}

int Show(const ConversionAnswer& answer, std::string_view where, bool json, Console& console) {
  if (!answer.error.empty()) {
    console.ComplainAbout(where, answer.error, L"", std::nullopt);
    if (!json && !where.empty()) console.out.Write("\n");
    return kFailed;
  }
  if (!json) {
    console.out.Write(answer.shown + L"\n");
    return kDone;
  }
  Json writer;
  writer.Begin('{');
  writer.Member(L"from", answer.from);
  writer.Member(L"to", answer.to);
  writer.Member(L"result", answer.shown);
  writer.Member(L"value", answer.value);
  writer.End('}');
  console.out.Write(writer.Take());
  return kDone;
}

int ConvertInput(UnitSearch& search, bool json, Console& console) {
  int status = kDone;
  LineReader reader(console.input, [&] { console.Flush(); });
  while (!console.out.HasFailed() && reader.Next()) {
    ConversionRequest request;
    ConversionAnswer answer{.error = L"The line is no conversion."};
    if (ReadConversionLine(Wide(reader.Line()), request)) answer = search.Convert(request);
    const std::string where = answer.error.empty() ? "" : "line " + std::to_string(reader.Number());
    if (Show(answer, where, json, console) != kDone) status = kFailed;
  }
  if (!reader.Failure().empty()) status = console.Complain("standard input: " + reader.Failure());
  return status;
}

int Run(const Given& given, Console& console) {
  if (given.Has("list")) return List(console), kDone;
  UnitSearch search(console.store);
  if (given.One("VALUE") == "-") return ConvertInput(search, given.Has("json"), console);
  if (!given.Has("TO")) return console.RefuseUse("convert needs VALUE, FROM and TO, or --list");
  return Show(
      search.Convert({Wide(given.One("VALUE")), Wide(given.One("FROM")), Wide(given.One("TO"))}),
      "", given.Has("json"), console);
}

}  // namespace

const Command kConvertCommand{.name = "convert",
                              .summary = "Converts a value from one unit to another",
                              .arguments = kArguments,
                              .options = kOptions,
                              .more = kMore,
                              .run = Run};

}  // namespace vexa::terminal

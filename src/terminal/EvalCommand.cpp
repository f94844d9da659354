#include <unistd.h>

#include "terminal/CalculatorLines.h"
#include "terminal/Commands.h"
#include "terminal/Console.h"
#include "terminal/Json.h"
#include "terminal/LineReader.h"
#include "terminal/Prompt.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Argument kArguments[] = {
    {.name = "EXPR",
     .help = "Expressions; \"-\" reads them from the standard input, one in each line",
     .kind = WordKind::Expression,
     .least = 0,
     .most = kAnyNumber},
};
constexpr Option kOptions[] = {kBaseOption, kAngleOption, kPrecisionOption, kDisplayOption,
                               kJsonOption};

constexpr std::string_view kMore =
    "What is not said by options is as in the calculator. Quote an expression with blanks or with\n"
    "characters that the shell reads, and put -- before one that begins with a minus and a "
    "letter.\n"
    "Each line of the standard input gives one line; that of an expression that failed is empty. "
    "A\n"
    "line such as \":base hex\" changes the options for the lines behind it.\n"
    "\n"
    "Examples:\n"
    "  vexa eval '2+3*4' 'sin(30)/7'\n"
    "  vexa eval -b hex 'FF and 3C'\n"
    "  vexa eval -a rad -d sci -p 8 -- '-sin(pi/7)'\n"
    "  vexa eval --json - < expressions.txt\n";

constexpr std::wstring_view kLineTooLong = L"The line is longer than 65536 bytes.";

/// Writes answers in the form that was asked for.
class AnswerWriter {
 public:
  AnswerWriter(Console& usedConsole, bool asJson) : console(usedConsole), json(asJson) {}

  void Write(std::wstring_view line, const LineAnswer& answer, const std::string& where) {
    if (!answer.error.empty()) status = kFailed;
    if (json) return WriteJson(line, answer);
    if (!answer.error.empty()) console.ComplainAbout(where, answer.error, line, answer.place);
    // One of several has its line in any case, so that they can be told apart.
    if (!answer.error.empty() && where.empty()) return;
    console.out.Write(answer.shown);
    console.out.Write("\n");
  }

  int status = kDone;

 private:
  void WriteJson(std::wstring_view line, const LineAnswer& answer) {
    writer.Begin('{');
    writer.Member(L"expression", line);
    if (answer.error.empty()) {
      writer.Member(L"result", answer.shown);
      writer.Member(L"value", answer.value);
    } else {
      writer.Member(L"error", answer.error);
      if (answer.place) writer.Member(L"column", static_cast<double>(*answer.place + 1));
    }
    writer.End('}');
    console.out.Write(writer.Take());
  }

  Console& console;
  bool json;
  Json writer;
};

void EvaluateInput(Console& console, CalculatorLines& lines, AnswerWriter& writer) {
  LineReader reader(console.input, [&] { console.Flush(); });
  while (!console.out.HasFailed() && reader.Next()) {
    const std::wstring line = Wide(reader.Line());
    const LineAnswer answer =
        reader.IsTooLong() ? LineAnswer{.error = std::wstring(kLineTooLong)} : lines.Take(line);
    writer.Write(line, answer,
                 answer.error.empty() ? "" : "line " + std::to_string(reader.Number()));
  }
  if (!reader.Failure().empty())
    writer.status = console.Complain("standard input: " + reader.Failure());
}

int Run(const Given& given, Console& console) {
  std::string error;
  const NumberModes modes = ModesOf(given, console.store, error);
  if (!error.empty()) return console.RefuseUse(error);
  const auto expressions = given.All("EXPR");
  if (expressions.empty() && isatty(console.input) != 0) return RunPrompt(console, modes);

  CalculatorLines lines(console.store, modes);
  AnswerWriter writer(console, given.Has("json"));
  if (expressions.empty()) EvaluateInput(console, lines, writer);
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    if (expressions[i] == "-") {
      EvaluateInput(console, lines, writer);
      continue;
    }
    const std::wstring expression = Wide(expressions[i]);
    writer.Write(expression, lines.Evaluate(expression),
                 expressions.size() == 1 ? "" : "expression " + std::to_string(i + 1));
  }
  return writer.status;
}

}  // namespace

const Command kEvalCommand{.name = "eval",
                           .summary = "Evaluates expressions; \"vexa EXPR\" is short for it",
                           .arguments = kArguments,
                           .options = kOptions,
                           .more = kMore,
                           .run = Run};

}  // namespace vexa::terminal

#include "terminal/Console.h"

#include <unistd.h>

#include <algorithm>

#include "terminal/Command.h"
#include "terminal/LineReader.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr std::string_view kProgram = "vexa: ";
constexpr std::wstring_view kIndent = L"  ";
constexpr std::wstring_view kLeftOut = L"...";

}  // namespace

int Console::Complain(std::string_view sentence) {
  errors.Write(std::string(kProgram).append(sentence).append("\n"));
  return kFailed;
}

int Console::Complain(std::wstring_view sentence) {
  return Complain(Narrow(Printable(sentence)));
}

int Console::RefuseUse(std::string_view sentence) {
  Complain(sentence);
  return kWrongUse;
}

void Console::ComplainAbout(std::string_view where, std::wstring_view sentence,
                            std::wstring_view text, std::optional<std::size_t> place) {
  Complain(std::string(where) + (where.empty() ? "" : ": ") + Narrow(Printable(sentence)));
  if (!place) return;
  // As much of the text as one row of the terminal shows, with the place in its middle at most.
  const auto room = static_cast<std::size_t>(std::max(errors.Columns() - 9, 8));
  const std::size_t cut = *place > room / 2 && text.size() > room ? *place - room / 2 : 0;
  std::wstring shown(kIndent);
  if (cut > 0) shown += kLeftOut;
  const std::size_t caret = shown.size() + *place - cut;
  shown += Printable(text.substr(cut, room));
  if (text.size() > cut + room) shown += kLeftOut;
  errors.Write(shown + L"\n" + std::wstring(caret, L' ') + L"^\n");
}

bool Console::Confirms(std::wstring_view question) {
  if (isatty(input) == 0 || !errors.IsTerminal()) return true;
  errors.Write(std::wstring(question) + L" [y/N] ");
  Flush();
  LineReader answer(input);
  return answer.Next() && (answer.Line().starts_with('y') || answer.Line().starts_with('Y'));
}

void Console::Flush() {
  out.Flush();
  errors.Flush();
}

}  // namespace vexa::terminal

#include "terminal/Prompt.h"

#include <histedit.h>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "app/History.h"
#include "terminal/CalculatorLines.h"
#include "terminal/Command.h"
#include "terminal/Completion.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr int kHistorySize = 1000;

char* PromptText(EditLine*) {
  static char text[] = "> ";
  return text;
}

/// Only lets the waiting for a key end.
void OnInterrupt(int) {}

/// Completes what stands before the cursor, or lists what it may become.
unsigned char Complete(EditLine* editor, int) {
  Console* console = nullptr;
  el_get(editor, EL_CLIENTDATA, &console);
  const LineInfo* const line = el_line(editor);
  const std::string_view text(line->buffer, static_cast<std::size_t>(line->cursor - line->buffer));
  const Completions found = CompleteLine(text, console->store);
  if (found.texts.empty()) return CC_ERROR;
  const std::string_view word = text.substr(found.start);
  const std::string common = CommonBeginning(found.texts);
  if (common.size() > word.size() || found.texts.size() == 1) {
    el_deletestr(editor, static_cast<int>(Wide(word).size()));
    return el_insertstr(editor, common.c_str()) == 0 ? CC_REFRESH : CC_ERROR;
  }
  console->out.Write("\n");
  for (const std::string& one : found.texts) console->out.Write(one + "  ");
  console->out.Write("\n");
  console->Flush();
  return CC_REDISPLAY;
}

/// The line editor and its history, which begins with what the calculator remembers.
class LineEditor {
 public:
  explicit LineEditor(Console& console)
      : editor(el_init("vexa", stdin, stdout, stderr)), entries(history_init()) {
    HistEvent event;
    history(entries, &event, H_SETSIZE, kHistorySize);
    history(entries, &event, H_SETUNIQUE, 1);
    el_set(editor, EL_CLIENTDATA, &console);
    el_set(editor, EL_PROMPT, PromptText);
    el_set(editor, EL_EDITOR, "emacs");
    el_set(editor, EL_HIST, history, entries);
    el_set(editor, EL_ADDFN, "complete", "Completes a word", Complete);
    el_set(editor, EL_BIND, "^I", "complete", nullptr);
    History calculated;
    calculated.Load(console.store);
    for (int i = 1; i <= calculated.Count(); ++i) {
      if (!calculated.At(i).starts_with(L'=')) Remember(Narrow(Printable(calculated.At(i))));
    }
  }
  ~LineEditor() {
    el_end(editor);
    history_end(entries);
  }
  LineEditor(const LineEditor&) = delete;
  LineEditor& operator=(const LineEditor&) = delete;

  /// Reads a line into `line`; false: there are no more.
  bool Read(std::string& line) {
    el_resize(editor);
    int size = 0;
    const char* const text = el_gets(editor, &size);
    // Ctrl+C leaves the line and begins a new one.
    const bool interrupted = !text && size < 0 && errno == EINTR;
    line = text ? std::string(text, static_cast<std::size_t>(size)) : "";
    if (line.ends_with('\n')) line.pop_back();
    if (interrupted) el_reset(editor);
    if (!text) std::fputs("\n", stdout), std::fflush(stdout);
    return text || interrupted;
  }

  void Remember(const std::string& line) {
    HistEvent event;
    history(entries, &event, H_ENTER, line.c_str());
  }

 private:
  EditLine* editor;
  ::History* entries;
};

/// Characters are read and drawn as UTF-8 wherever the system can.
void UseUtf8() {
  setlocale(LC_CTYPE, "");
  if (MB_CUR_MAX == 1) setlocale(LC_CTYPE, "C.UTF-8");
}

}  // namespace

int RunPrompt(Console& console, const NumberModes& modes) {
  UseUtf8();
  struct sigaction action {};
  action.sa_handler = OnInterrupt;
  sigaction(SIGINT, &action, nullptr);

  CalculatorLines lines(console.store, modes);
  LineEditor editor(console);
  console.out.Write("Vexa Calculator. \":help\" helps, Ctrl+D ends.\n");
  console.Flush();
  for (std::string text; !console.out.HasFailed() && editor.Read(text);) {
    const std::wstring line = Wide(text);
    if (Trimmed(line).empty()) continue;
    editor.Remember(text);
    const LineAnswer answer = lines.Take(line);
    if (answer.error.empty()) console.out.Write(answer.shown + L"\n");
    if (!answer.error.empty()) console.ComplainAbout("", answer.error, line, answer.place);
    console.Flush();
  }
  return kDone;
}

}  // namespace vexa::terminal

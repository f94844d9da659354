// The program in a terminal.

#include "display/FileSettingsStore.h"
#include "display/SettingsLayout.h"
#include "terminal/CommandLine.h"
#include "terminal/Console.h"

using namespace vexa;
using namespace vexa::terminal;

int main(int argc, char** argv) {
  FileSettingsStore store;
  store.SetSettingsKey(settings::kSettingsKey);
  Console console(store);
  Request request = ReadCommandLine(std::vector<std::string>(argv + 1, argv + argc));
  int status = request.status;
  if (request.command) {
    status = request.command->run(request.given, console);
  } else {
    (status == kDone ? console.out : console.errors).Write(request.text);
  }
  if (!store.Flush()) status = kFailed;
  for (const std::wstring& notice : store.TakeNotices()) console.Complain(notice);
  console.Flush();
  if (console.out.HasFailed()) {
    status = console.Complain("standard output: " + console.out.Failure());
    console.errors.Flush();
  }
  return status;
}

#include <algorithm>

#include "macros/MacroEditor.h"
#include "terminal/Commands.h"
#include "terminal/Console.h"
#include "terminal/Json.h"
#include "terminal/NumberOptions.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

constexpr Argument kName{.name = "NAME", .help = "The macro's name", .kind = WordKind::Macro};
constexpr Argument kNameOnly[] = {kName};
constexpr Argument kNameAndFormula[] = {
    kName,
    {.name = "FORMULA",
     .help = "A formula of X, of X and Y, or of X, Y and Z",
     .kind = WordKind::Expression},
};
constexpr Option kListOptions[] = {kJsonOption};

constexpr std::string_view kSetMore =
    "A macro of this name is replaced. Which variables the formula has decides how many arguments "
    "a\n"
    "call takes.\n"
    "\n"
    "Examples:\n"
    "  vexa macro set hyp 'sqrt(x^2+y^2)'\n"
    "  vexa 'M:hyp(3,4)'\n";

/// Selects the macro with this name; false: there is none, and that was said.
bool Select(MacroEditor& editor, std::string_view name, Console& console) {
  const auto index = editor.Macros().Find(Wide(name));
  if (index) return editor.Select(*index), true;
  console.Complain("There is no macro \"" + Narrow(Printable(Wide(name))) + "\".");
  return false;
}

/// The type that a formula's variables ask for: an index of the types.
int TypeOf(std::wstring_view formula) {
  ExprParser parser;
  parser.formulaType = FormulaType::XYZ;
  parser.Validate(formula);
  const auto uses = [&](char variable) {
    return std::any_of(parser.tokens.begin(), parser.tokens.begin() + parser.tokenCount,
                       [&](const Token& t) { return t.isOperand == 1 && t.op == variable; });
  };
  return uses('z') ? 2 : uses('y') ? 1 : 0;
}

int List(const Given& given, Console& console) {
  const MacroEditor editor(console.store);
  const MacroTable& macros = editor.Macros();
  if (!given.Has("json")) {
    for (int i = 0; i < macros.Count(); ++i) {
      console.out.Write(Printable(MacroLine(macros.At(i)) + L" = " + macros.ReadFormula(i)) +
                        L"\n");
    }
    return kDone;
  }
  Json json;
  json.Begin('[');
  for (int i = 0; i < macros.Count(); ++i) {
    json.Begin('{');
    json.Member(L"name", macros.At(i).name);
    json.Member(L"arguments",
                static_cast<double>(MacroTypeOf(macros.At(i).type).formulaType) + 1.0);
    json.Member(L"formula", macros.ReadFormula(i));
    json.End('}');
  }
  json.End(']');
  console.out.Write(json.Take());
  return kDone;
}

int Show(const Given& given, Console& console) {
  MacroEditor editor(console.store);
  if (!Select(editor, given.One("NAME"), console)) return kFailed;
  console.out.Write(Printable(editor.ShownFields().formula) + L"\n");
  return kDone;
}

int Set(const Given& given, Console& console) {
  MacroEditor editor(console.store);
  MacroEditor::Fields fields{.name = Wide(given.One("NAME")),
                             .type = TypeOf(Trimmed(Wide(given.One("FORMULA")))),
                             .formula = Wide(given.One("FORMULA"))};
  const std::wstring name(Trimmed(fields.name));
  if (const auto index = editor.Macros().Find(name)) {
    editor.Select(*index);
    editor.Edit();
  } else {
    editor.New();
  }
  const auto refusal = editor.Save(fields);
  return refusal.sentence.empty() ? int{kDone} : console.Complain(refusal.sentence);
}

int Delete(const Given& given, Console& console) {
  MacroEditor editor(console.store);
  if (!Select(editor, given.One("NAME"), console)) return kFailed;
  if (console.Confirms(editor.DeleteQuestion())) editor.Delete();
  return kDone;
}

}  // namespace

const Command kMacroListCommand{.name = "macro list",
                                .summary = "Lists the macros",
                                .arguments = {},
                                .options = kListOptions,
                                .more = "",
                                .run = List};
const Command kMacroShowCommand{.name = "macro show",
                                .summary = "Shows a macro's formula",
                                .arguments = kNameOnly,
                                .options = {},
                                .more = "",
                                .run = Show};
const Command kMacroSetCommand{.name = "macro set",
                               .summary = "Makes or changes a macro",
                               .arguments = kNameAndFormula,
                               .options = {},
                               .more = kSetMore,
                               .run = Set};
const Command kMacroDeleteCommand{.name = "macro delete",
                                  .summary = "Deletes a macro; asks first, on a terminal",
                                  .arguments = kNameOnly,
                                  .options = {},
                                  .more = "",
                                  .run = Delete};

}  // namespace vexa::terminal

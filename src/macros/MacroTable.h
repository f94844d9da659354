#pragma once

#include <array>
#include <string>
#include <string_view>

#include "display/SettingsStore.h"
#include "engine/ExprParser.h"
#include "toolkit/NamedRecords.h"

namespace vexa {

/// Macros that can be kept.
inline constexpr int kMaxMacros = 60;

/// What is said when a macro is to be picked and there is none.
inline constexpr std::wstring_view kNoMacro = L"Not exist saved macro";

/// What a macro call in an expression begins with; the macro's name follows.
inline constexpr std::wstring_view kMacroCallMark = L"M:";

/// An argument type of macros: the stored text, the variables of its formula, what lists show
/// behind a name, and what closes a call that a key inserts.
struct MacroType {
  std::wstring_view storedText;
  FormulaType formulaType;
  std::wstring_view listSuffix;
  std::wstring_view callSuffix;
};

/// The argument types in the order in which the editor offers them.
inline constexpr std::array<MacroType, 3> kMacroTypes{{
    {L"TYPE1 : F(X)", FormulaType::X, L"(X)", L" )"},
    {L"TYPE2 : F(X,Y)", FormulaType::XY, L"(X,Y)", L" , )"},
    {L"TYPE3 : F(X,Y,Z)", FormulaType::XYZ, L"(X,Y,Z)", L" , , )"},
}};

/// The type with this stored text; any text that is not in the table counts as the last type.
const MacroType& MacroTypeOf(std::wstring_view storedText);

/// A macro as tables hold it. The formula stays in the store.
struct Macro {
  std::wstring name;
  std::wstring type;
};

/// A macro as lists show it: area(X,Y)
std::wstring MacroLine(const Macro& macro);

/// What a macro key puts before and behind the selection, the arguments: M:area( and  , )
struct MacroCall {
  std::wstring prefix;
  std::wstring_view suffix;
};
MacroCall CallOf(const Macro& macro);

/// The stored macros' names and types, in order. Every change is written to the store at once.
class MacroTable : public NamedRecords<Macro> {
 public:
  /// Works on `settingsStore`, which must outlive the table. Empty until LoadMacroTable.
  explicit MacroTable(SettingsStore& settingsStore) : store(settingsStore) {}

  /// Reads names and types; a count outside 0 to kMaxMacros is clamped.
  void LoadMacroTable();
  /// The stored formula of macro `index`.
  std::wstring ReadFormula(int index) const;
  /// Appends a macro. The caller has validated it and that Count() is below kMaxMacros.
  void AddMacro(std::wstring_view name, std::wstring_view type, std::wstring_view formula);
  /// Rewrites macro `index` in place.
  void ReplaceMacro(int index, std::wstring_view name, std::wstring_view type,
                    std::wstring_view formula);
  /// Removes macro `index`; the ones behind it move down, and the last stored section is emptied.
  void DeleteMacro(int index);

 private:
  void WriteMacro(int index, const Macro& macro, std::wstring_view formula);

  SettingsStore& store;
};

}  // namespace vexa

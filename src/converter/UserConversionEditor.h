#pragma once

#include <string>
#include <string_view>

#include "converter/UserConversions.h"
#include "display/SettingsStore.h"
#include "toolkit/ListEditorView.h"

namespace vexa {

/// What the screen asks, Yes or No, before Delete.
inline constexpr std::wstring_view kDeleteConversionQuestion =
    L"Are you sure you want to delete the selected unit convert?";

/// The boxes of the editor; None where the focus stays.
enum class ConversionBox { None, FirstName, SecondName, Rate };

/// The texts of the editor's boxes.
struct ConversionBoxes {
  std::wstring firstName;
  std::wstring secondName;
  std::wstring rate;

  bool operator==(const ConversionBoxes&) const = default;
};

/// Why Save was refused and where the focus goes; an empty sentence: saved.
struct SaveOutcome {
  std::wstring sentence;
  ConversionBox focus = ConversionBox::None;
};

/// The editor of the user's conversions without its window.
class UserConversionEditor {
 public:
  /// Reads the conversions; the view state, the first one selected. `settingsStore` must outlive
  /// the editor.
  explicit UserConversionEditor(SettingsStore& settingsStore);

  /// Starts a new conversion with empty names and rate 0. Returns the box that gets the focus.
  ConversionBox New();
  /// Starts to edit the selected conversion. Returns the box that gets the focus; None when nothing
  /// is selected and nothing happened.
  ConversionBox Edit();
  /// Checks what was typed and stores it: then the view state, the saved conversion selected. A
  /// refusal changes nothing.
  SaveOutcome Save(const ConversionBoxes& typed);
  /// Back to the view state without saving.
  void Cancel();
  /// Removes the selected conversion, if any, and selects the one that takes its place, or the
  /// last.
  void Delete();
  /// Selects a conversion of the list; a position outside it selects nothing.
  void Select(int position);

  ListEditorView View() const {
    return ViewOfListEditor(editing, conversions.Count(), kMaxUserConversions);
  }
  bool IsEditing() const { return editing; }
  const UserConversions& Conversions() const { return conversions; }
  /// The list's selected position; -1: none.
  int Selected() const { return selected; }
  /// What the boxes hold after every operation but a refused Save, which leaves them as typed.
  const ConversionBoxes& Boxes() const { return boxes; }

 private:
  SaveOutcome Check(const ConversionBoxes& typed, UserConversion& conversion) const;

  UserConversions conversions;
  bool editing = false;
  /// Position of the conversion that is edited; -1: a new one.
  int editedIndex = -1;
  int selected = -1;
  ConversionBoxes boxes;
};

}  // namespace vexa

#pragma once

#include <string>
#include <string_view>

#include "converter/UserConversions.h"
#include "display/SettingsStore.h"
#include "toolkit/LineText.h"
#include "toolkit/ListEditor.h"

namespace vexa {

/// The texts of the editor's boxes.
struct ConversionBoxes {
  std::wstring firstName;
  std::wstring secondName;
  std::wstring rate;

  bool operator==(const ConversionBoxes&) const = default;
};

/// The editor of the user's conversions without its window: the conversions and the checks before
/// one is saved.
class UserConversionEditor : public ListEditor {
 public:
  /// What a unit's name holds: more than the list's line can show.
  static constexpr FieldLength kUnitNameLength{100, L"Unit name exceeded length limit."};

  /// The boxes of the editor.
  enum Box : int { FirstName, SecondName, Rate };

  /// Reads the conversions; the view state, the first one selected. `settingsStore` must outlive
  /// the editor.
  explicit UserConversionEditor(SettingsStore& settingsStore);

  int Count() const override { return conversions.Count(); }
  std::wstring Line(int index) const override { return conversions.At(index).name; }
  std::wstring_view DeleteQuestion() const override;

  /// Checks what was typed and stores it: then the view state, the saved conversion selected. A
  /// refusal changes nothing.
  Refusal Save(const ConversionBoxes& typed);

  const UserConversions& Conversions() const { return conversions; }
  /// What the boxes show: a new conversion's empty names and rate 0, or the selected conversion.
  ConversionBoxes ShownBoxes() const;

 protected:
  void Remove(int index) override { conversions.Delete(index); }

 private:
  Refusal Check(const ConversionBoxes& typed, UserConversion& conversion) const;

  UserConversions conversions;
};

}  // namespace vexa

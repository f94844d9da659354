#pragma once

#include <string>
#include <string_view>

#include "toolkit/ListEditorView.h"

namespace vexa {

/// An editor of a list without its window: which entry is selected, and the state in which that
/// entry or a new one is edited. A derived editor holds the entries and checks what is saved.
class ListEditor {
 public:
  /// Says that no field is at fault.
  static constexpr int kNoField = -1;

  /// Why nothing was saved, and which field gets the focus, counted from 0; an empty sentence:
  /// saved.
  struct Refusal {
    std::wstring sentence;
    int field = kNoField;
  };

  virtual ~ListEditor() = default;

  virtual int Count() const = 0;
  /// Entry `index` as the list shows it.
  virtual std::wstring Line(int index) const = 0;
  /// What is asked, Yes or No, before Delete.
  virtual std::wstring_view DeleteQuestion() const = 0;

  /// Enters the editing state with a new entry.
  void New();
  /// Enters the editing state with the selected entry; does nothing without one.
  void Edit();
  /// Returns to the view state without saving.
  void Cancel() { editing = false; }
  /// Removes the selected entry, if any, and selects the one that takes its place, or the last.
  void Delete();
  /// Selects an entry of the list; a position outside it selects nothing.
  void Select(int index);

  /// The selected entry, -1: none.
  int Selected() const { return selected; }
  bool IsEditing() const { return editing; }
  /// What is shown and enabled, and the list's label.
  ListEditorView View() const { return ViewOfListEditor(editing, Count(), capacity); }

 protected:
  /// Of at most `largestCount` entries. The derived editor selects one when it has loaded them.
  explicit ListEditor(int largestCount) : capacity(largestCount) {}

  virtual void Remove(int index) = 0;
  /// Returns to the view state with entry `index`, which was saved, selected.
  void ShowSaved(int index);
  /// The entry that is edited, -1: a new one.
  int Edited() const { return edited; }
  /// The entry that the fields show, -1: a new one, or none.
  int Shown() const { return editing ? edited : selected; }

 private:
  int capacity;
  bool editing = false;
  int edited = -1;
  int selected = -1;
};

}  // namespace vexa

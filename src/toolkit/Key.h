#pragma once

#include <cstddef>
#include <string_view>

#include "engine/CalcModes.h"
#include "toolkit/EditText.h"

namespace vexa {

/// What a key is for; the theme gives each role its colours. The two Shift keys tell the visible
/// layer at a glance.
enum class KeyRole {
  Digit,
  Operator,
  Function,
  Editing,
  Command,
  Equals,
  Shift,
  ShiftActive,
  Pale,    ///< a dialog's button
  Memory,  ///< a dialog's button of the memory menu
};

/// What a key puts into the edit line.
struct KeyText {
  /// Without a selection: the text, and how many of its characters stand behind the caret.
  std::wstring_view text{};
  std::size_t caretFromEnd = 0;
  /// With a selection that the key keeps: what comes before and after it, and how many of these
  /// characters stand behind the caret. A key that does not keep the selection replaces it.
  bool keepsSelection = false;
  std::wstring_view prefix{};
  std::wstring_view suffix{};
  std::size_t wrappedCaretFromEnd = 0;

  /// True when the key runs a command of its screen instead.
  constexpr bool IsEmpty() const { return text.empty(); }
};

/// A key that replaces the selection by `text`.
constexpr KeyText PlainKey(std::wstring_view text) {
  return {.text = text};
}

/// A key that inserts `text` without a selection, and goes around one as `prefix` and `suffix`.
constexpr KeyText OperatorKey(std::wstring_view text, std::wstring_view prefix,
                              std::wstring_view suffix) {
  return {.text = text, .keepsSelection = true, .prefix = prefix, .suffix = suffix};
}

/// A key that wraps the selection, or nothing: `call` is `prefix` and ")", caret between them.
constexpr KeyText FunctionKey(std::wstring_view call) {
  return {.text = call,
          .caretFromEnd = 1,
          .keepsSelection = true,
          .prefix = call.substr(0, call.size() - 1),
          .suffix = L")"};
}

/// The key of the n-th root: the number stands before it, and n goes before the last ")".
constexpr KeyText RootKey() {
  return {.text = L"^(1/)",
          .caretFromEnd = 1,
          .keepsSelection = true,
          .prefix = L"(",
          .suffix = L")^(1/)",
          .wrappedCaretFromEnd = 1};
}

/// Where a key is shown, on each layer, and where it can be used.
struct KeyPlaces {
  BaseSet unshifted = kAllBases;
  BaseSet shifted = kAllBases;
  BaseSet enabled = kAllBases;
};

/// A key of a keypad. The caption is its name, for people, tests and assistive technology; keys
/// that take each other's place share a cell.
struct Key {
  std::wstring_view caption;
  KeyRole role;
  int row;
  int column;
  /// What the key does, in plain words.
  std::wstring_view help{};
  KeyText inserts{};
  KeyPlaces places{};
  /// What is drawn instead of the caption: what stands in braces is raised.
  std::wstring_view face{};
  int columnSpan = 1;
  bool autoRepeat = false;
};

/// What pressing a key that inserts `keyText` does to the edit line.
TextChange TypeKey(const EditText& edit, const KeyText& keyText);

}  // namespace vexa

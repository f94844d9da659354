#pragma once

#include <cstddef>
#include <string_view>

#include "toolkit/EditText.h"

namespace vexa {

/// What a key is for; the theme gives each role its colours.
enum class KeyRole { Digit, Operator, Function, Editing, Command, Equals };

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

/// A key of a keypad. The caption is its name, for people, tests and assistive technology.
struct Key {
  std::wstring_view caption;
  KeyRole role;
  int row;
  int column;
  int columnSpan = 1;
  KeyText inserts{};
  bool autoRepeat = false;
};

/// What pressing a key that inserts `keyText` does to the edit line.
TextChange TypeKey(const EditText& edit, const KeyText& keyText);

}  // namespace vexa

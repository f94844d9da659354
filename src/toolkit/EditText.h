#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vexa {

/// An edit line's text and selection (equal ends: the caret), in characters of the wide string.
struct EditText {
  std::wstring text;
  std::size_t selectionStart = 0;
  std::size_t selectionEnd = 0;

  bool HasSelection() const { return selectionStart != selectionEnd; }
};

/// One change of an edit line: the characters from `start` to `end` are replaced by `replacement`,
/// then the caret stands at `caret`. A screen applies it as a single step of undo.
struct TextChange {
  std::size_t start = 0;
  std::size_t end = 0;
  std::wstring replacement;
  std::size_t caret = 0;
};

/// Replaces the selection, or inserts at the caret.
TextChange InsertText(const EditText& edit, std::wstring_view text);
/// Puts `prefix` before and `suffix` after the selection, caret behind the suffix; without a
/// selection both are inserted and the caret stands between them.
TextChange WrapSelection(const EditText& edit, std::wstring_view prefix, std::wstring_view suffix);
/// "BS": deletes the selection, or the character before the caret.
TextChange DeleteBefore(const EditText& edit);
/// "DEL": deletes the selection, or the character after the caret.
TextChange DeleteAfter(const EditText& edit);
/// "CLR": deletes the whole text.
TextChange DeleteAll(const EditText& edit);
/// Whether `edit` has room for `change` in a field of `longest` characters. A change that does not
/// lengthen the text always has.
bool HasRoom(const EditText& edit, const TextChange& change, std::size_t longest);
/// `edit` after `change`.
EditText Apply(const EditText& edit, const TextChange& change);

}  // namespace vexa

#include "toolkit/EditText.h"

namespace vexa {

TextChange InsertText(const EditText& edit, std::wstring_view text) {
  return {edit.selectionStart, edit.selectionEnd, std::wstring(text),
          edit.selectionStart + text.size()};
}

TextChange WrapSelection(const EditText& edit, std::wstring_view prefix, std::wstring_view suffix) {
  const std::size_t length = edit.selectionEnd - edit.selectionStart;
  std::wstring replacement(prefix);
  replacement += edit.text.substr(edit.selectionStart, length);
  replacement += suffix;
  const std::size_t caret =
      edit.selectionStart + (edit.HasSelection() ? replacement.size() : prefix.size());
  return {edit.selectionStart, edit.selectionEnd, std::move(replacement), caret};
}

TextChange DeleteBefore(const EditText& edit) {
  if (edit.HasSelection() || edit.selectionStart == 0) return InsertText(edit, L"");
  return {edit.selectionStart - 1, edit.selectionStart, L"", edit.selectionStart - 1};
}

TextChange DeleteAfter(const EditText& edit) {
  if (edit.HasSelection() || edit.selectionEnd >= edit.text.size()) return InsertText(edit, L"");
  return {edit.selectionEnd, edit.selectionEnd + 1, L"", edit.selectionEnd};
}

TextChange DeleteAll(const EditText& edit) {
  return {0, edit.text.size(), L"", 0};
}

bool HasRoom(const EditText& edit, const TextChange& change, std::size_t longest) {
  const std::size_t removed = change.end - change.start;
  const std::size_t added = change.replacement.size();
  return added <= removed || edit.text.size() - removed + added <= longest;
}

EditText Apply(const EditText& edit, const TextChange& change) {
  std::wstring text = edit.text;
  text.replace(change.start, change.end - change.start, change.replacement);
  return {std::move(text), change.caret, change.caret};
}

}  // namespace vexa

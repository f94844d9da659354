#include "toolkit/EditText.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

namespace vexa {
namespace {

/// An edit line in writing: the selection stands between "[" and "]", the caret is "|".
EditText Line(std::wstring text) {
  EditText edit;
  edit.selectionStart = text.find_first_of(L"[|");
  const bool selected = text[edit.selectionStart] == L'[';
  text.erase(edit.selectionStart, 1);
  edit.selectionEnd = selected ? text.find(L']') : edit.selectionStart;
  if (selected) text.erase(edit.selectionEnd, 1);
  edit.text = text;
  return edit;
}

std::wstring Written(const EditText& edit) {
  std::wstring text = edit.text;
  if (!edit.HasSelection()) return text.insert(edit.selectionStart, L"|");
  return text.insert(edit.selectionEnd, L"]").insert(edit.selectionStart, L"[");
}

struct EditCase {
  std::wstring before;
  std::wstring after;
};

void ExpectChanges(const std::vector<EditCase>& cases,
                   const std::function<TextChange(const EditText&)>& change) {
  for (const EditCase& c : cases) {
    const EditText edit = Line(c.before);
    EXPECT_EQ(Written(edit), c.before);
    EXPECT_EQ(Written(Apply(edit, change(edit))), c.after);
  }
}

TEST(EditText, Insert) {
  ExpectChanges({{L"|", L"sin(|"},
                 {L"1+|", L"1+sin(|"},
                 {L"|1+2", L"sin(|1+2"},
                 {L"1|2", L"1sin(|2"},
                 {L"1[+]2", L"1sin(|2"},
                 {L"[1+2]", L"sin(|"}},
                [](const EditText& edit) { return InsertText(edit, L"sin("); });
  ExpectChanges({{L"1|2", L"1|2"}, {L"1[+]2", L"1|2"}},
                [](const EditText& edit) { return InsertText(edit, L""); });
}

TEST(EditText, Wrap) {
  ExpectChanges({{L"[5]", L"NOT(5)|"},
                 {L"1+[5]*2", L"1+NOT(5)|*2"},
                 {L"|", L"NOT(|)"},
                 {L"1|2", L"1NOT(|)2"}},
                [](const EditText& edit) { return WrapSelection(edit, L"NOT(", L")"); });
  ExpectChanges({{L"[5]", L"(5) AND |"}, {L"1+[2*3]", L"1+(2*3) AND |"}},
                [](const EditText& edit) { return WrapSelection(edit, L"(", L") AND "); });
}

TEST(EditText, DeleteBefore) {
  ExpectChanges({{L"|", L"|"},
                 {L"|12", L"|12"},
                 {L"1|2", L"|2"},
                 {L"12|", L"1|"},
                 {L"[12]", L"|"},
                 {L"1[2]3", L"1|3"},
                 {L"\U0001f600|", L"|"}},
                DeleteBefore);
}

TEST(EditText, DeleteAfter) {
  ExpectChanges({{L"|", L"|"},
                 {L"12|", L"12|"},
                 {L"1|2", L"1|"},
                 {L"|12", L"|2"},
                 {L"[12]", L"|"},
                 {L"1[2]3", L"1|3"}},
                DeleteAfter);
}

TEST(EditText, DeleteAll) {
  ExpectChanges({{L"|", L"|"}, {L"1|2", L"|"}, {L"1[2]3", L"|"}, {L"[123]", L"|"}}, DeleteAll);
}

EditText RandomLine(std::mt19937& random) {
  std::wstring text(random() % 8, L'a');
  for (wchar_t& c : text) c = static_cast<wchar_t>(L'a' + random() % 26);
  std::size_t start = random() % (text.size() + 1);
  std::size_t end = random() % (text.size() + 1);
  if (start > end) std::swap(start, end);
  return {text, start, end};
}

TEST(EditText, LawsOfApplying) {
  std::mt19937 random(81);
  for (int i = 0; i < 5'000; ++i) {
    const EditText edit = RandomLine(random);
    const TextChange changes[] = {InsertText(edit, L"pi"), WrapSelection(edit, L"(", L")"),
                                  DeleteBefore(edit), DeleteAfter(edit), DeleteAll(edit)};
    for (const TextChange& change : changes) {
      const EditText after = Apply(edit, change);
      // What stands around the change stays, the caret lies within the replacement.
      ASSERT_LE(change.start, change.end);
      ASSERT_EQ(after.text, edit.text.substr(0, change.start) + change.replacement +
                                edit.text.substr(change.end));
      ASSERT_FALSE(after.HasSelection());
      ASSERT_EQ(after.selectionStart, change.caret);
      ASSERT_GE(change.caret, change.start);
      ASSERT_LE(change.caret, change.start + change.replacement.size());
      // Putting the replaced text back undoes it.
      const TextChange back{change.start, change.start + change.replacement.size(),
                            edit.text.substr(change.start, change.end - change.start),
                            change.start};
      ASSERT_EQ(Apply(after, back).text, edit.text);
    }
    const EditText inserted = Apply(edit, InsertText(edit, L"7"));
    const EditText without = Apply(edit, InsertText(edit, L""));
    ASSERT_EQ(Written(Apply(inserted, DeleteBefore(inserted))), Written(without));
    ASSERT_EQ(Apply(edit, WrapSelection(edit, L"", L"")).text, edit.text);
    if (edit.HasSelection()) {
      ASSERT_EQ(Written(Apply(edit, DeleteBefore(edit))), Written(Apply(edit, DeleteAfter(edit))));
    }
  }
}

TEST(EditText, RoomIsForTheWholeChange) {
  const struct {
    std::wstring before;
    std::wstring text;
    bool hasRoom;
  } cases[] = {
      {L"12345678|", L"00", true},
      {L"12345678|", L"sin", false},
      {L"1234567890|", L"1", false},
      {L"[1234567890]", L"12", true},
      {L"123[45]67890", L"12", true},
      {L"123[45]67890", L"123", false},
      {L"|", L"12345678901", false},
      // A text that is too long already can become shorter.
      {L"[12]345678901234", L"1", true},
      {L"[12]345678901234", L"12", true},
      {L"[12]345678901234", L"123", false},
  };
  for (const auto& c : cases) {
    const EditText edit = Line(c.before);
    EXPECT_EQ(HasRoom(edit, InsertText(edit, c.text), 10), c.hasRoom);
  }
  const EditText edit = Line(L"12[345]6780");
  EXPECT_TRUE(HasRoom(edit, WrapSelection(edit, L"(", L""), 10));
  EXPECT_FALSE(HasRoom(edit, WrapSelection(edit, L"(", L")"), 10));
}

}  // namespace
}  // namespace vexa

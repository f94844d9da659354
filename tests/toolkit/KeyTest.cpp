#include "toolkit/Key.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

EditText Typed(const EditText& edit, const KeyText& keyText) {
  return Apply(edit, TypeKey(edit, keyText));
}

const EditText kCaret{L"12+34", 3, 3};
const EditText kSelected{L"12+34", 3, 5};

struct KeyCase {
  KeyText key;
  const EditText& before;
  std::wstring text;
  std::size_t caret;
};

TEST(Key, InsertsAtTheCaretAndAroundASelection) {
  // The caret goes inside what a key of this kind inserts, with and without a selection.
  constexpr KeyText root{.text = L"^(1/)",
                         .caretFromEnd = 1,
                         .keepsSelection = true,
                         .prefix = L"(",
                         .suffix = L")^(1/)",
                         .wrappedCaretFromEnd = 1};
  const KeyCase cases[] = {
      {PlainKey(L"00"), kCaret, L"12+0034", 5},
      {PlainKey(L"00"), kSelected, L"12+00", 5},
      {OperatorKey(L"*", L"(", L")*"), kCaret, L"12+*34", 4},
      {OperatorKey(L"*", L"(", L")*"), kSelected, L"12+(34)*", 8},
      {OperatorKey(L"+", L"", L"+"), kSelected, L"12+34+", 6},
      {FunctionKey(L"sin()"), kCaret, L"12+sin()34", 7},
      {FunctionKey(L"sin()"), kSelected, L"12+sin(34)", 10},
      {FunctionKey(L"()"), kCaret, L"12+()34", 4},
      {root, kCaret, L"12+^(1/)34", 7},
      {root, kSelected, L"12+(34)^(1/)", 11},
  };
  for (const KeyCase& c : cases) {
    const EditText after = Typed(c.before, c.key);
    EXPECT_EQ(after.text, c.text);
    EXPECT_EQ(after.selectionStart, c.caret);
    EXPECT_FALSE(after.HasSelection());
  }
}

TEST(Key, AKeyWithoutTextRunsACommand) {
  EXPECT_TRUE(KeyText{}.IsEmpty());
  EXPECT_FALSE(PlainKey(L"7").IsEmpty());
}

}  // namespace
}  // namespace vexa

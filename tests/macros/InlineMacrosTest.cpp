#include "macros/InlineMacros.h"

#include <gtest/gtest.h>

#include "display/MemorySettingsStore.h"

namespace vexa {
namespace {

class InlineMacrosTest : public testing::Test {
 protected:
  InlineMacrosTest() : macros(store) {
    macros.AddMacro(L"sq", L"TYPE1 : F(X)", L"x^2");
    macros.AddMacro(L"area", L"TYPE2 : F(X,Y)", L"X*y+exp(y)");
    macros.AddMacro(L"vol", L"TYPE3 : F(X,Y,Z)", L"x*y*z");
  }
  std::wstring Inlined(std::wstring_view formula) { return InlineMacros(formula, macros, error); }

  MemorySettingsStore store;
  MacroTable macros;
  std::wstring error;
};

TEST_F(InlineMacrosTest, CallsBecomeFormulas) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"", L""},
      {L"x+1", L"x+1"},
      {L"M:sq(x)", L"((x)^2)"},
      {L"2*M:sq(x+1)-M:sq(3)", L"2*((x+1)^2)-((3)^2)"},
      {L"M:area(x,2)", L"((x)*(2)+exp((2)))"},
      {L"M:vol(1,x, x )", L"((1)*(x)*( x ))"},
      {L"M:sq((x))", L"(((x))^2)"},
      {L"(M:sq(1))*x", L"(((1)^2))*x"},
      {L"2*(M:sq(x))+1", L"2*(((x)^2))+1"},
  };
  for (const auto& [formula, text] : cases) {
    EXPECT_EQ(Inlined(formula), text);
    EXPECT_EQ(error, L"");
  }
}

TEST_F(InlineMacrosTest, CallsThatCannotBeReadAreRefused) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"M:", L"Expression error."},
      {L"M:sq", L"Expression error."},
      {L"M:sq(x", L"Expression error."},
      {L"2M:sq(x)", L"Expression error."},
      {L"xM:sq(x)", L"Expression error."},
      {L"M:sq(x)3", L"Expression error."},
      {L"M:sq(x)!", L"Expression error."},
      {L"M:Sq(x)", L"Macro Name error"},
      {L"M:(x)", L"Macro Name error"},
      {L"M:sq(x,1)", L"Macro argument error"},
      {L"M:sq()", L"Macro argument error"},
      {L"M:sq(x+)", L"Macro argument error"},
      {L"M:sq(M:sq(x))", L"Macro argument error"},
      {L"M:area(x)", L"Macro argument error"},
      {L"M:vol(x,x)", L"Macro argument error"},
      {L"x+M:sq(x)+M:none(x)", L"Macro Name error"},
  };
  for (const auto& [formula, sentence] : cases) {
    Inlined(formula);
    EXPECT_EQ(error, sentence);
  }
}

TEST_F(InlineMacrosTest, OnlyTheFirstCallsLeftNeighbourIsTested) {
  EXPECT_EQ(Inlined(L"M:sq(x)*2M:sq(x)"), L"((x)^2)*2((x)^2)");
  EXPECT_EQ(error, L"");
}

TEST_F(InlineMacrosTest, AFormulaThatIsNoneIsRefused) {
  macros.AddMacro(L"bad", L"TYPE1 : F(X)", L"x+)");
  macros.AddMacro(L"constant", L"TYPE1 : F(X)", L"2");
  for (const wchar_t* const formula : {L"M:bad(x)", L"M:constant(x)"}) {
    Inlined(formula);
    EXPECT_EQ(error, L"Macro formula is invalid");
  }
}

TEST_F(InlineMacrosTest, ParenthesesOfAFormulaKeepToThemselves) {
  macros.AddMacro(L"early", L"TYPE1 : F(X)", L"x)+(2");
  Inlined(L"M:early(x)");
  EXPECT_EQ(error, L"Expression error.");
}

TEST_F(InlineMacrosTest, AFunctionAloneInItsParenthesesIsRefusedBesideCalls) {
  macros.AddMacro(L"lone", L"TYPE1 : F(X)", L"(sin)-x");
  for (const wchar_t* const formula : {L"M:lone(x)", L"(sin)+M:sq(x)", L"M:sq((abs))+x"}) {
    Inlined(formula);
    EXPECT_EQ(error, L"Expression error.") << formula;
  }
  // Without a call nothing is refused here.
  EXPECT_EQ(Inlined(L"(sin)+x"), L"(sin)+x");
  EXPECT_EQ(error, L"");
}

TEST_F(InlineMacrosTest, NeedlessBlanksTakeNoRoom) {
  macros.AddMacro(L"wide", L"TYPE1 : F(X)", L"x" + std::wstring(1000000, L' ') + L"* x");
  const std::wstring blanks(1000000, L' ');
  EXPECT_EQ(Inlined(L"M:wide(x" + blanks + L")"), L"((x ) * (x ))");
  EXPECT_EQ(error, L"");
}

TEST_F(InlineMacrosTest, ManyCallsOfALongFormulaEndSoon) {
  // Nobody can type this; a foreign store can hold it.
  macros.AddMacro(L"long", L"TYPE1 : F(X)", L"x" + std::wstring(100000, L' '));
  std::wstring formula = L"x";
  for (int n = 0; n < 10000; ++n) formula += L"+M:long(x)";
  const std::wstring text = Inlined(formula);
  EXPECT_EQ(error, L"");
  // What stands behind the calls that fill an engine's records is left as it is.
  EXPECT_TRUE(text.ends_with(L"+M:long(x)"));
  EXPECT_LT(text.size(), 200'000u);
}

TEST_F(InlineMacrosTest, AsManyCallsAreInlinedAsAnEngineHasRecords) {
  constexpr int kCalls = 151;
  for (const int left : {0, 1, 2}) {
    std::wstring formula;
    std::wstring expected;
    for (int n = 0; n < kCalls + left; ++n) {
      formula += L"+M:sq(x)";
      expected += n < kCalls ? L"+((x)^2)" : L"+M:sq(x)";
    }
    EXPECT_EQ(Inlined(formula), expected) << left;
    EXPECT_EQ(error, L"");
  }
}

TEST_F(InlineMacrosTest, NamesAreFoundWithoutTheirBlanks) {
  macros.AddMacro(L"my f", L"TYPE1 : F(X)", L"x+1");
  EXPECT_EQ(Inlined(L"M:myf(x)"), L"((x)+1)");
  // The name itself wins.
  macros.AddMacro(L"myf", L"TYPE1 : F(X)", L"x+2");
  EXPECT_EQ(Inlined(L"M:myf(x)"), L"((x)+2)");
  EXPECT_EQ(Inlined(L"M:my f(x)"), L"((x)+1)");
}

}  // namespace
}  // namespace vexa

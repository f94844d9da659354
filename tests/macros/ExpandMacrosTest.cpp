#include "macros/ExpandMacros.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::Narrow;

const std::wstring kExpressionError = L"Expression error.";
const std::wstring kNameError = L"Macro Name error";
const std::wstring kArgumentError = L"Macro argument error";
const std::wstring kFormulaError = L"Macro formula is invalid";

class ExpandMacrosTest : public testing::Test {
 protected:
  ExpandMacrosTest() : macros(store) {
    const wchar_t* const one = L"TYPE1 : F(X)";
    const wchar_t* const two = L"TYPE2 : F(X,Y)";
    const wchar_t* const three = L"TYPE3 : F(X,Y,Z)";
    macros.AddMacro(L"f", one, L"x/3");
    macros.AddMacro(L"neg", one, L"0-x");
    macros.AddMacro(L"area", two, L"x*y");
    macros.AddMacro(L"vol", three, L"x*100+y*10+z");
    macros.AddMacro(L"other", L"something else", L"x*100+y*10+z");
    macros.AddMacro(L"s", one, L"sin(x)");
    macros.AddMacro(L"root", one, L"sqrt(x)");
    macros.AddMacro(L"inv", one, L"1/x");
    macros.AddMacro(L"big", one, L"10^x");
    macros.AddMacro(L"g h", one, L"x+1");
    macros.AddMacro(L"\u00e9t\u00e9", one, L"x*2");
    macros.AddMacro(L"usesy", one, L"x+y");
    macros.AddMacro(L"nox", one, L"2+3");
    macros.AddMacro(L"syntax", one, L"x+");
    macros.AddMacro(L"empty", one, L"");
    macros.AddMacro(L"two values", one, L"x");
    macros.AddMacro(L"q", two, L"x-2*-y");
  }

  MacroExpansion Expand(const std::wstring& text, BaseType base = BaseType::Dec,
                        AngleType angle = AngleType::Degrees) const {
    return ExpandMacros(text, macros, angle, base);
  }

  MemorySettingsStore store;
  MacroTable macros;
};

TEST_F(ExpandMacrosTest, Texts) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"M:f(1)", L"0.333333"},
      {L"3*M:f(1)", L"3*0.333333"},
      {L"M:f(1)+2", L"0.333333+2"},
      {L"2+M:f(1)+3", L"2+0.333333+3"},
      {L"M:f(7.5)", L"2.500000"},
      {L"M:neg(1.5)", L"-1.500000"},
      {L"2*M:neg(1.5)", L"2*-1.500000"},
      {L"M:area(3,4)", L"12.000000"},
      {L"M:vol(1,2,3)", L"123.000000"},
      {L"M:other(1,2,3)", L"123.000000"},
      {L"M:area(1+2,2*3)", L"18.000000"},
      {L"M:f((1+2)*(3+4))", L"7.000000"},
      {L"M:f( 3 )", L"1.000000"},
      {L"M:f(1)*M:f(2)", L"0.333333*0.666667"},
      {L"(M:f(1))", L"(0.333333)"},
      {L"2^M:f(3)^2", L"2^1.000000^2"},
      {L"2%M:f(3)%2", L"2%1.000000%2"},
      {L"2/M:f(3)/2", L"2/1.000000/2"},
      {L"2-M:f(3)-2", L"2-1.000000-2"},
      {L"M:s(30)", L"0.500000"},
      {L"M:g h(1)", L"2.000000"},
      {L"M:\u00e9t\u00e9(4)", L"8.000000"},
      {L"M:q(5,3)", L"-1.000000"},
      {L"M:big(20)", L"100000000000000000000.000000"},
      {L"M:f(0)", L"0.000000"},
      {L"M:f(1e-9)", L"0.000000"},
      // Behind the first call the left neighbour is the engine's matter.
      {L"M:f(3)+2M:f(3)", L"1.000000+21.000000"},
      // Macro names are spliced out of longer text too.
      {L"((M:f(3))+(M:f(6)))", L"((1.000000)+(2.000000))"},
  };
  for (const auto& [text, expanded] : cases) {
    const MacroExpansion expansion = Expand(text);
    EXPECT_EQ(expansion.expression, expanded) << Narrow(text);
    EXPECT_EQ(expansion.error, L"") << Narrow(text);
  }
}

TEST_F(ExpandMacrosTest, LastCall) {
  const MacroExpansion one = Expand(L"M:f(1)");
  EXPECT_EQ(one.lastMacroText, one.expression);
  EXPECT_EQ(one.lastResult, 1.0 / 3);
  const MacroExpansion two = Expand(L"M:f(1)*M:f(2)");
  EXPECT_EQ(two.lastMacroText, L"0.666667");
  EXPECT_EQ(two.lastResult, 2.0 / 3);
}

TEST_F(ExpandMacrosTest, Errors) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"2M:f(1)", kExpressionError},
      {L" M:f(1)", kExpressionError},
      {L"!M:f(1)", kExpressionError},
      {L")M:f(1)", kExpressionError},
      {L"sinM:f(1)", kExpressionError},
      {L"M:f(1)2", kExpressionError},
      {L"M:f(1) ", kExpressionError},
      {L"M:f(1)(", kExpressionError},
      {L"M:f(1)!", kExpressionError},
      {L"M:f(1)M:f(1)", kExpressionError},
      {L"M:", kExpressionError},
      {L"M:f", kExpressionError},
      {L"M:f(1", kExpressionError},
      {L"M:f((1)", kExpressionError},
      {L"M:)f(1)", kExpressionError},
      {L"M:f)(", kExpressionError},
      {L"1+M:f(", kExpressionError},
      {L"M:none(1)", kNameError},
      {L"M:Area(2)", kNameError},
      {L"M:AREA(2,3)", kNameError},
      {L"M:(1)", kNameError},
      {L"M:f (1)", kNameError},
      {L"M: f(1)", kNameError},
      {L"M:M:f(1)", kNameError},
      {L"M:none(#)", kNameError},
      {L"M:none(1)2", kExpressionError},
      {L"M:f()", kArgumentError},
      {L"M:f( )", kArgumentError},
      {L"M:f(1,2)", kArgumentError},
      {L"M:f(,)", kArgumentError},
      {L"M:area(1)", kArgumentError},
      {L"M:area(1,2,3)", kArgumentError},
      {L"M:area(,2)", kArgumentError},
      {L"M:area(1,)", kArgumentError},
      {L"M:vol(1,2)", kArgumentError},
      {L"M:vol(1,2,3,4)", kArgumentError},
      {L"M:vol((1,2),3)", kArgumentError},
      {L"M:f(1/0)", kArgumentError},
      {L"M:f(x)", kArgumentError},
      {L"M:f(sin)", kArgumentError},
      {L"M:f(M:f(1))", kArgumentError},
      {L"M:area(M:f(1),2)", kArgumentError},
      {L"M:usesy(1)", kFormulaError},
      {L"M:nox(1)", kFormulaError},
      {L"M:syntax(1)", kFormulaError},
      {L"M:empty(1)", kFormulaError},
      {L"M:usesy(1/0)", kArgumentError},
      {L"M:inv(0)", L"Division exceeded calculation limit."},
      {L"M:root(0-1)", L"sqrt exceeded calculation limit."},
      {L"M:big(400)", L"Out of range(overflow or underflow)"},
      {L"M:inv(0)+M:none(1)", L"Division exceeded calculation limit."},
      {L"M:none(1)+M:inv(0)", kNameError},
      {L"M:f(1)+M:none(1)", kNameError},
  };
  for (const auto& [text, error] : cases) EXPECT_EQ(Expand(text).error, error) << Narrow(text);
}

TEST_F(ExpandMacrosTest, CommasCountAtEveryDepthAndInTheName) {
  MemorySettingsStore other;
  MacroTable table(other);
  table.AddMacro(L"a,b", L"TYPE2 : F(X,Y)", L"x+y");
  // The comma of the name is counted, so no comma is left to split at.
  EXPECT_EQ(ExpandMacros(L"M:a,b(1)", table, AngleType::Degrees, BaseType::Dec).error,
            kArgumentError);
  EXPECT_EQ(ExpandMacros(L"M:a,b(1,2)", table, AngleType::Degrees, BaseType::Dec).error,
            kArgumentError);
}

TEST_F(ExpandMacrosTest, IsTheIdentityWithoutACall) {
  for (const wchar_t* text : {L"", L"1+2", L"m:f(1)", L"M :f(1)", L"f(1)", L"M", L":", L"#?"}) {
    const MacroExpansion expansion = Expand(text);
    EXPECT_EQ(expansion.expression, text);
    EXPECT_EQ(expansion.error, L"");
    EXPECT_EQ(expansion.lastMacroText, L"");
  }
  std::mt19937 random(71);
  const std::wstring alphabet = L"Mm:f(1),+-* \u00e9";
  for (int i = 0; i < 5'000; ++i) {
    std::wstring text;
    for (auto length = random() % 10; length > 0; --length) {
      text += alphabet[random() % alphabet.size()];
    }
    if (text.find(L"M:") != std::wstring::npos) continue;
    const MacroExpansion expansion = Expand(text);
    ASSERT_EQ(expansion.expression, text);
    ASSERT_EQ(expansion.error, L"");
  }
}

TEST_F(ExpandMacrosTest, ArgumentsAreInTheBaseFormulasInDecimal) {
  EXPECT_EQ(Expand(L"M:area(ff,10)", BaseType::Hex).expression, L"4080.000000");
  EXPECT_EQ(Expand(L"M:area(11,10)", BaseType::Bin).expression, L"6.000000");
  EXPECT_EQ(Expand(L"M:vol(1,1,1)", BaseType::Bin).expression, L"111.000000");
  EXPECT_EQ(Expand(L"M:f(not 0)", BaseType::Oct).lastResult, -1.0 / 3);
  EXPECT_EQ(Expand(L"M:f(2)", BaseType::Bin).error, kArgumentError);
  EXPECT_EQ(Expand(L"M:f(1.5)", BaseType::Hex).error, kArgumentError);
}

TEST_F(ExpandMacrosTest, AngleModeReachesArgumentsAndFormulas) {
  EXPECT_EQ(Expand(L"M:s(pi/2)", BaseType::Dec, AngleType::Radians).expression, L"1.000000");
  EXPECT_EQ(Expand(L"M:s(asin(1))", BaseType::Dec, AngleType::Degrees).expression, L"1.000000");
  EXPECT_EQ(Expand(L"M:f(sin(90))", BaseType::Dec, AngleType::Degrees).expression, L"0.333333");
}

TEST_F(ExpandMacrosTest, TheFormulaIsReadWhenTheCallIsExpanded) {
  Write(store, settings::kMacroFormula, 0, L"x/4");
  EXPECT_EQ(Expand(L"M:f(1)").expression, L"0.250000");
}

TEST_F(ExpandMacrosTest, HostileTexts) {
  std::wstring calls = L"M:f(3)";
  for (int i = 0; i < 20'000; ++i) calls += L"+M:f(3)";
  const MacroExpansion expansion = Expand(calls);
  EXPECT_EQ(expansion.error, L"");
  EXPECT_EQ(expansion.expression.size(), 20'001u * 8 + 20'000);
  std::wstring marks;
  for (int i = 0; i < 500'000; ++i) marks += L"M:";
  EXPECT_EQ(Expand(marks).error, kExpressionError);
  EXPECT_EQ(Expand(L"M:f(" + std::wstring(1'000'000, L'(')).error, kExpressionError);
  EXPECT_EQ(Expand(L"M:f(" + std::wstring(1'000'000, L',') + L")").error, kArgumentError);
  EXPECT_EQ(Expand(L"M:" + std::wstring(1'000'000, L'f') + L"(1)").error, kNameError);
}

}  // namespace
}  // namespace vexa

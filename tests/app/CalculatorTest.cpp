#include "app/Calculator.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "display/SettingsLayout.h"
#include "support/RecordingStore.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using Texts = std::vector<std::wstring>;
using test::Narrow;
using test::RecordingStore;

const std::wstring kDivision = L"Division exceeded calculation limit.";

Texts Entries(const History& history) {
  Texts entries;
  for (int i = 1; i <= history.Count(); ++i) entries.push_back(history.At(i));
  return entries;
}

TEST(Calculator, AFreshStore) {
  MemorySettingsStore store;
  const Calculator calculator(store);
  EXPECT_EQ(calculator.baseType, BaseType::Dec);
  EXPECT_EQ(calculator.angleType, AngleType::Degrees);
  EXPECT_EQ(calculator.displayType, DisplayType::Currency);
  EXPECT_EQ(calculator.precision, 5);
  EXPECT_EQ(calculator.converterPositions.category, -1);
  EXPECT_EQ(calculator.converterPositions.input, -1);
  EXPECT_EQ(calculator.converterPositions.output, -1);
  EXPECT_TRUE(calculator.history.IsEmpty());
  EXPECT_EQ(calculator.macros.Count(), 0);
  EXPECT_EQ(calculator.resultLine, L"0");
  EXPECT_EQ(calculator.answer, 0.0);
  EXPECT_EQ(calculator.lastError, L"");
}

TEST(Calculator, ReadsAndWritesInOrder) {
  RecordingStore store;
  Write(store, settings::kMacroCount, 1);
  Write(store, settings::kCalHistoryCount, 2);
  store.ForgetNotes();
  const Calculator calculator(store);
  EXPECT_EQ(store.reads, (Texts{L"Config/Angle Type", L"Convert/ClassPos", L"Convert/InputTypePos",
                                L"Convert/OutputTypePos", L"Config/Display Type",
                                L"Config/Precision", L"MacroInfo/TotalNumber", L"Macro0/Name",
                                L"Macro0/Type", L"History/CalHistoryCount", L"History/CalHistory2",
                                L"History/CalHistory1", L"Config/Base Type"}));
  EXPECT_TRUE(store.writes.empty());
  store.ForgetNotes();
  calculator.Save();
  EXPECT_EQ(store.writes, (Texts{L"Config/Angle Type", L"Config/Base Type", L"Config/Display Type",
                                 L"Config/Precision", L"Convert/ClassPos", L"Convert/InputTypePos",
                                 L"Convert/OutputTypePos", L"History/CalHistoryCount",
                                 L"History/CalHistory1", L"History/CalHistory2"}));
  EXPECT_TRUE(store.reads.empty());
}

TEST(Calculator, EachCommandStoresWhatItChanges) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.ToggleAngle();
  EXPECT_EQ(Read(store, settings::kAngleType), 2);
  calculator.SetBase(BaseType::Hex);
  EXPECT_EQ(Read(store, settings::kBaseType), 2);
  calculator.SetDisplay(DisplayType::Scientific, 7);
  EXPECT_EQ(Read(store, settings::kPrecision), 7);
  calculator.TakeFromConverter({13, 9, 12}, 0.0);
  EXPECT_EQ(Read(store, settings::kClassPos), 13);
  EXPECT_EQ(Read(store, settings::kInputTypePos), 9);
  EXPECT_EQ(Read(store, settings::kOutputTypePos), 12);
  calculator.Evaluate(L"1+1");
  EXPECT_EQ(Read(store, settings::kCalHistoryCount), 2);
  EXPECT_EQ(Read(store, settings::kCalHistory, 2), L"1+1");
  // An expression that the engine refuses can be recalled and mended, too.
  calculator.Evaluate(L"1+");
  EXPECT_EQ(Read(store, settings::kCalHistoryCount), 3);
  EXPECT_EQ(Read(store, settings::kCalHistory, 3), L"1+");
}

TEST(Calculator, RemembersEverythingThatItSaves) {
  MemorySettingsStore store;
  {
    Calculator calculator(store);
    calculator.SetBase(BaseType::Oct);
    calculator.ToggleAngle();
    calculator.displayType = DisplayType::Engineering;
    calculator.precision = 12;
    calculator.converterPositions.category = 3;
    calculator.converterPositions.input = 0;
    calculator.converterPositions.output = 7;
    calculator.Evaluate(L"7+1");
    calculator.Save();
  }
  const Calculator calculator(store);
  EXPECT_EQ(calculator.baseType, BaseType::Oct);
  EXPECT_EQ(calculator.angleType, AngleType::Radians);
  EXPECT_EQ(calculator.displayType, DisplayType::Engineering);
  EXPECT_EQ(calculator.precision, 12);
  EXPECT_EQ(calculator.converterPositions.category, 3);
  EXPECT_EQ(calculator.converterPositions.input, 0);
  EXPECT_EQ(calculator.converterPositions.output, 7);
  EXPECT_EQ(Entries(calculator.history), (Texts{L"=[O]10", L"7+1"}));
  EXPECT_EQ(calculator.answer, 0.0);
}

TEST(Calculator, StoredValuesOutOfRange) {
  struct RangeCase {
    const settings::IntSetting& setting;
    int stored;
    int saved;
  };
  const RangeCase cases[] = {
      {settings::kBaseType, 2, 2},         {settings::kBaseType, 4, 4},
      {settings::kBaseType, 0, 1},         {settings::kBaseType, 5, 1},
      {settings::kBaseType, -1, 1},        {settings::kBaseType, 2147483647, 1},
      {settings::kAngleType, 7, 7},        {settings::kAngleType, -1, -1},
      {settings::kDisplayType, 99, 99},    {settings::kDisplayType, -1, -1},
      {settings::kPrecision, -5, -5},      {settings::kPrecision, 2147483647, 2147483647},
      {settings::kClassPos, 1000, 1000},   {settings::kCalHistoryCount, 25, 10},
      {settings::kCalHistoryCount, -1, 0}, {settings::kMacroCount, 2147483647, 2147483647},
      {settings::kMacroCount, -1, -1},
  };
  for (const RangeCase& c : cases) {
    MemorySettingsStore store;
    Write(store, c.setting, c.stored);
    Calculator calculator(store);
    calculator.Save();
    EXPECT_EQ(Read(store, c.setting), c.saved) << Narrow(c.setting.entry) << " " << c.stored;
    calculator.Evaluate(L"1+1");
    EXPECT_EQ(calculator.lastError, L"") << Narrow(c.setting.entry) << " " << c.stored;
    EXPECT_EQ(calculator.answer, 2.0);
  }
}

TEST(Calculator, NothingTyped) {
  MemorySettingsStore store;
  Calculator calculator(store);
  for (const wchar_t* text : {L"", L" ", L"       "}) {
    calculator.Evaluate(L"2+3");
    const Texts before = Entries(calculator.history);
    calculator.Evaluate(text);
    EXPECT_EQ(calculator.resultLine, L"Expression is null.");
    EXPECT_EQ(calculator.lastError, L"There is no expression.");
    EXPECT_EQ(calculator.answer, 0.0);
    EXPECT_EQ(Entries(calculator.history), before);
  }
}

struct EvaluateCase {
  std::wstring text;
  std::wstring resultLine;
  double answer;
};

TEST(Calculator, Results) {
  MemorySettingsStore store;
  Calculator calculator(store);
  const EvaluateCase cases[] = {
      {L"2+3", L"5", 5},
      {L"  2+3  ", L"5", 5},
      {L"1000*1000", L"1,000,000", 1e6},
      {L"1/4", L"0.25", 0.25},
      {L"0-0.5", L"-0.5", -0.5},
      {L"-0", L"0", 0},
      {L"10^13", L"1.00000e+013", 1e13},
      {L"SIN(30)", L"0.5", 0.49999999999999994},
  };
  for (const EvaluateCase& c : cases) {
    calculator.Evaluate(c.text);
    EXPECT_EQ(calculator.resultLine, c.resultLine);
    EXPECT_DOUBLE_EQ(calculator.answer, c.answer);
    EXPECT_EQ(calculator.lastError, L"");
  }
}

TEST(Calculator, ErrorsAreShownAndClearTheAnswer) {
  MemorySettingsStore store;
  Calculator calculator(store);
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"1/0", kDivision},
      {L"(1", L"Not matched '(' and ')'."},
      {L"1+", L"Expression error."},
      {L"sin", L"(sin) needs an argument."},
      {L"#", L"# is not supported."},
      {L"1e999", L"Out of range(overflow or underflow)"},
      {L"1+\n2", L"\n is not supported."},
  };
  for (const auto& [text, sentence] : cases) {
    calculator.Evaluate(L"7");
    calculator.Evaluate(text);
    EXPECT_EQ(calculator.resultLine, sentence);
    EXPECT_EQ(calculator.lastError, sentence);
    EXPECT_EQ(calculator.answer, 0.0);
    EXPECT_EQ(calculator.history.At(calculator.history.Count()), text);
  }
  calculator.Evaluate(L"7");
  EXPECT_EQ(calculator.lastError, L"");
}

TEST(Calculator, HistoryOfResults) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"2+3 ");
  const Texts once{L"=[D]5", L"2+3 "};
  EXPECT_EQ(Entries(calculator.history), once);
  calculator.Evaluate(L"2+3 ");
  EXPECT_EQ(Entries(calculator.history), once);
  // The history holds the text as typed: other blanks are another entry.
  calculator.Evaluate(L"2+3");
  EXPECT_EQ(Entries(calculator.history), (Texts{L"=[D]5", L"2+3 ", L"=[D]5", L"2+3"}));
}

TEST(Calculator, AFailureAddsOnlyItsExpression) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"tan(90)");
  EXPECT_EQ(Entries(calculator.history), (Texts{L"tan(90)"}));
  calculator.Evaluate(L"tan(90)");
  EXPECT_EQ(Entries(calculator.history), (Texts{L"tan(90)"}));
  // Succeeds in radians, and the newest entry is this expression already.
  calculator.ToggleAngle();
  calculator.Evaluate(L"tan(90)");
  EXPECT_EQ(calculator.lastError, L"");
  EXPECT_EQ(Entries(calculator.history), (Texts{L"tan(90)"}));
}

TEST(Calculator, HistoryNeverExceedsTen) {
  MemorySettingsStore store;
  Calculator calculator(store);
  for (int i = 0; i < 20; ++i) {
    calculator.Evaluate(std::to_wstring(i));
    ASSERT_LE(calculator.history.Count(), 10);
  }
  EXPECT_EQ(calculator.history.At(1), L"=[D]15");
  EXPECT_EQ(calculator.history.At(10), L"19");
}

TEST(Calculator, EvaluatesItsOwnTexts) {
  MemorySettingsStore store;
  Calculator calculator(store);
  const std::wstring expression = L"1111111111+2222222222+3333333333+4444444444";
  calculator.Evaluate(expression);
  for (int i = 0; i < 4; ++i) calculator.Evaluate(std::to_wstring(i));
  calculator.Evaluate(calculator.history.At(2));
  EXPECT_EQ(calculator.resultLine, L"11,111,111,110");
  EXPECT_EQ(calculator.history.At(10), expression);
  calculator.Evaluate(L"255");
  calculator.Evaluate(calculator.resultLine);
  EXPECT_EQ(calculator.history.At(10), L"255");
}

TEST(Calculator, TagsOfTheBases) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.SetBase(BaseType::Hex);
  calculator.Evaluate(L"f0+f");
  calculator.SetBase(BaseType::Bin);
  calculator.Evaluate(L"11");
  calculator.SetBase(BaseType::Oct);
  calculator.Evaluate(L"not 0");
  EXPECT_EQ(Entries(calculator.history),
            (Texts{L"=[H]FF", L"f0+f", L"=[B]11", L"11", L"=[O]37777777777", L"not 0"}));
}

class CalculatorMacros : public testing::Test {
 protected:
  CalculatorMacros() {
    MacroTable macros(store);
    macros.AddMacro(L"f", L"TYPE1 : F(X)", L"x/3");
    macros.AddMacro(L"neg", L"TYPE1 : F(X)", L"0-x");
    macros.AddMacro(L"inv", L"TYPE1 : F(X)", L"1/x");
    macros.AddMacro(L"bad", L"TYPE1 : F(X)", L"x+");
    macros.AddMacro(L"big", L"TYPE1 : F(X)", L"10^x");
  }
  MemorySettingsStore store;
};

TEST_F(CalculatorMacros, ASingleCallKeepsItsPrecision) {
  Calculator calculator(store);
  calculator.displayType = DisplayType::FloatingPoint;
  const EvaluateCase cases[] = {
      {L"M:f(1)", L"0.333333333333", 1.0 / 3},
      {L" M:f(1) ", L"0.333333333333", 1.0 / 3},
      {L"3*M:f(1)", L"0.999999", 0.999999},
      {L"(M:f(1))", L"0.333333", 0.333333},
      {L"2*M:neg(1.5)", L"-3", -3},
      {L"M:big(20)", L"1.00000e+020", 1e20},
  };
  for (const EvaluateCase& c : cases) {
    calculator.Evaluate(c.text);
    EXPECT_EQ(calculator.resultLine, c.resultLine) << Narrow(c.text);
    EXPECT_DOUBLE_EQ(calculator.answer, c.answer) << Narrow(c.text);
    EXPECT_EQ(calculator.history.At(calculator.history.Count()), c.text);
  }
}

TEST_F(CalculatorMacros, ExpansionErrorsStayOutOfTheHistory) {
  Calculator calculator(store);
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"2M:f(1)", L"Expression error."},
      {L"M:g(1)", L"Macro Name error"},
      {L"M:f(1,2)", L"Macro argument error"},
      {L"M:bad(1)", L"Macro formula is invalid"},
      {L"M:inv(0)", kDivision},
  };
  for (const auto& [text, sentence] : cases) {
    calculator.answer = 7.0;
    calculator.Evaluate(text);
    EXPECT_EQ(calculator.resultLine, sentence);
    EXPECT_EQ(calculator.lastError, sentence);
    EXPECT_EQ(calculator.answer, 0.0);
    EXPECT_TRUE(calculator.history.IsEmpty());
  }
  // The engine refuses a value longer than a number may be: an error of evaluation.
  calculator.Evaluate(L"1+M:big(40)");
  EXPECT_EQ(calculator.lastError, L"number exceeded length limit.");
  EXPECT_EQ(Entries(calculator.history), (Texts{L"1+M:big(40)"}));
}

TEST_F(CalculatorMacros, TheTableIsTheOneOfTheStart) {
  Calculator calculator(store);
  MacroTable(store).AddMacro(L"late", L"TYPE1 : F(X)", L"x");
  calculator.Evaluate(L"M:late(1)");
  EXPECT_EQ(calculator.lastError, L"Macro Name error");
}

TEST(Calculator, BaseSwitchShowsTheAnswer) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"255");
  const std::pair<BaseType, std::wstring> cases[] = {{BaseType::Hex, L"FF"},
                                                     {BaseType::Bin, L"11111111"},
                                                     {BaseType::Oct, L"377"},
                                                     {BaseType::Dec, L"255"}};
  for (const auto& [base, text] : cases) {
    calculator.SetBase(base);
    EXPECT_EQ(calculator.resultLine, text);
    EXPECT_EQ(calculator.baseType, base);
  }
  calculator.Evaluate(L"0-1.9");
  calculator.SetBase(BaseType::Hex);
  EXPECT_EQ(calculator.resultLine, L"FFFFFFFF");
  EXPECT_EQ(calculator.answer, -1.9);
}

TEST(Calculator, ChoosingTheCurrentBaseChangesNothing) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"1/0");
  calculator.SetBase(BaseType::Dec);
  EXPECT_EQ(calculator.resultLine, kDivision);
  EXPECT_EQ(calculator.lastError, kDivision);
}

TEST(Calculator, ToggleAngle) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.ToggleAngle();
  EXPECT_EQ(calculator.angleType, AngleType::Radians);
  calculator.ToggleAngle();
  EXPECT_EQ(calculator.angleType, AngleType::Degrees);
  calculator.angleType = static_cast<AngleType>(7);
  calculator.ToggleAngle();
  EXPECT_EQ(calculator.angleType, AngleType::Degrees);
}

TEST(Calculator, RecallConvertsResultsToTheBase) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"12345+0.5");
  EXPECT_EQ(calculator.history.At(1), L"=[D]12,345.5");
  EXPECT_EQ(calculator.RecallHistory(1), L"12345.5");
  EXPECT_EQ(calculator.RecallHistory(2), L"12345+0.5");
  calculator.SetBase(BaseType::Hex);
  EXPECT_EQ(calculator.RecallHistory(1), L"3039");
  EXPECT_EQ(calculator.RecallHistory(2), L"12345+0.5");
}

TEST(Calculator, MemoryRegister) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.Evaluate(L"1000.5");
  calculator.AddToMemory();
  calculator.AddToMemory();
  EXPECT_EQ(calculator.memory, 2001.0);
  EXPECT_EQ(calculator.RecallValueText(calculator.memory), L"2001");
  calculator.SubtractFromMemory();
  EXPECT_EQ(calculator.RecallValueText(calculator.memory), L"1000.5");
  EXPECT_EQ(calculator.MemoryVariableText(), L"1000.5");
  calculator.SetBase(BaseType::Hex);
  EXPECT_EQ(calculator.RecallValueText(calculator.memory), L"3E8");
  EXPECT_EQ(calculator.MemoryVariableText(), L"1000.5");
  calculator.ClearMemory();
  EXPECT_EQ(calculator.memory, 0.0);
}

TEST(Calculator, WhatChangesIsStoredAtOnce) {
  MemorySettingsStore store;
  Calculator calculator(store);
  calculator.ToggleAngle();
  EXPECT_EQ(Read(store, settings::kAngleType), 2);
  calculator.SetBase(BaseType::Oct);
  EXPECT_EQ(Read(store, settings::kBaseType), 4);
  calculator.Evaluate(L"7+1");
  EXPECT_EQ(Read(store, settings::kCalHistoryCount), 2);
  EXPECT_EQ(Read(store, settings::kCalHistory, 1), L"=[O]10");
  EXPECT_EQ(Read(store, settings::kCalHistory, 2), L"7+1");
  calculator.Evaluate(L"7+");
  EXPECT_EQ(Read(store, settings::kCalHistory, 3), L"7+");
  calculator.TakeFromConverter({3, 4, 5}, 0.0);
  EXPECT_EQ(Read(store, settings::kClassPos), 3);
  EXPECT_EQ(Read(store, settings::kInputTypePos), 4);
  EXPECT_EQ(Read(store, settings::kOutputTypePos), 5);
}

TEST(Calculator, WhatIsRecalledIsNoOutcome) {
  const std::wstring overflow = L"Out of range(overflow or underflow)";
  MemorySettingsStore store;
  Write(store, settings::kCalHistoryCount, 1);
  Write(store, settings::kCalHistory, 1, L"=[H]" + std::wstring(1000, L'F'));
  Calculator calculator(store);
  calculator.Evaluate(L"1e308");
  calculator.AddToMemory();
  calculator.AddToMemory();
  EXPECT_EQ(calculator.RecallValueText(calculator.memory), overflow);
  EXPECT_EQ(calculator.lastError, L"");
  EXPECT_EQ(calculator.RecallHistory(1), overflow);
  EXPECT_EQ(calculator.lastError, L"");
  calculator.answer = calculator.memory;
  EXPECT_EQ(calculator.MemoryVariableText(), overflow);
  EXPECT_EQ(calculator.lastError, L"");
  // Nor does a recall that can be shown end a failure.
  calculator.Evaluate(L"1+");
  const std::wstring sentence = calculator.lastError;
  calculator.RecallValueText(1.0);
  EXPECT_EQ(calculator.lastError, sentence);
}

TEST(Calculator, HostileTexts) {
  MemorySettingsStore store;
  Calculator calculator(store);
  for (const std::wstring& text :
       {std::wstring(1'000'000, L'1'), std::wstring(1'000'000, L'('), std::wstring(1'000'000, L'M'),
        L"M:" + std::wstring(1'000'000, L'('), std::wstring(1'000'000, L' ') + L"1+"}) {
    calculator.Evaluate(text);
    EXPECT_FALSE(calculator.lastError.empty());
    EXPECT_EQ(calculator.resultLine, calculator.lastError);
  }
  calculator.Evaluate(std::wstring(1'000'000, L' ') + L"1" + std::wstring(1'000'000, L' '));
  EXPECT_EQ(calculator.resultLine, L"1");
}

}  // namespace
}  // namespace vexa

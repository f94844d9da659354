// Converting, the memory commands and "OK" of the converter.

#include "converter/UnitConverter.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <limits>

#include "converter/RecordingStore.h"
#include "macros/MemoryMenu.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::HexDouble;
using test::Integer;
using test::Narrow;
using test::ReadTable;
using test::RecordingStore;
using test::StoreWithConversions;

constexpr std::wstring_view kOverflow = L"Out of range(overflow or underflow)";
constexpr std::wstring_view kNotice = L"Please enter a number.";
constexpr ConverterPositions kMetersToKilometers{6, 16, 14};
constexpr ConverterPositions kCelsiusToFahrenheit{11, 0, 0};

/// A converter that is open on `positions` with `text`.
struct OpenConverter {
  OpenConverter(const ConverterPositions& positions, std::wstring_view text, double memory = 0.0) {
    converter.Open(positions, memory, text);
  }

  RecordingStore store = StoreWithConversions(3);
  UnitConverter converter{store};
};

TEST(UnitConverter, ConvertsAtEveryKeystroke) {
  OpenConverter opened(kMetersToKilometers, L"1");
  const struct {
    std::wstring_view text;
    std::wstring_view line;
    std::wstring_view notice;
  } cases[] = {
      {L"1", L"0.001", L""},        {L"15", L"0.015", L""},      {L"1500", L"1.5", L""},
      {L"1500.", L"1.5", L""},      {L"1500e", L"1.5", kNotice}, {L"1500e3", L"1,500", L""},
      {L"-", L"1,500", kNotice},    {L"-5", L"-0.005", L""},     {L"", L"-0.005", kNotice},
      {L"1,5", L"-0.005", kNotice}, {L"1,500", L"1.5", L""},     {L"0x10", L"1.5", kNotice},
      {L"1e999", L"1.5", kNotice},  {L"0", L"0", L""},
  };
  for (const auto& c : cases) {
    opened.converter.EnterText(c.text);
    EXPECT_EQ(opened.converter.InputText(), c.text);
    EXPECT_EQ(opened.converter.OutputLine(), c.line) << Narrow(c.text);
    EXPECT_EQ(opened.converter.ResultText(), c.line) << Narrow(c.text);
    EXPECT_EQ(opened.converter.InputNotice(), c.notice) << Narrow(c.text);
    EXPECT_EQ(opened.converter.HasResult(), c.notice.empty()) << Narrow(c.text);
    EXPECT_EQ(opened.converter.IsResultStale(), !c.notice.empty()) << Narrow(c.text);
  }
}

TEST(UnitConverter, ConvertsAtEverySelection) {
  OpenConverter opened({6, 16, 16}, L"1500");
  EXPECT_EQ(opened.converter.OutputLine(), L"1,500");
  opened.converter.ChooseOutput(14);
  EXPECT_EQ(opened.converter.OutputLine(), L"1.5");
  opened.converter.ChooseInput(14);
  EXPECT_EQ(opened.converter.OutputLine(), L"1,500");
  EXPECT_EQ(opened.converter.Positions(), (ConverterPositions{6, 14, 14}));
}

TEST(UnitConverter, UnitsChosenWhileTheTextIsNoNumberAreKept) {
  OpenConverter opened(kMetersToKilometers, L"1500");
  opened.converter.EnterText(L"x");
  opened.converter.ChooseInput(3);
  opened.converter.ChooseOutput(5);
  EXPECT_EQ(opened.converter.Selection(), (ConverterPositions{6, 3, 5}));
  EXPECT_EQ(opened.converter.Positions(), (ConverterPositions{6, 3, 5}));
  EXPECT_EQ(opened.converter.OutputLine(), L"1.5");

  opened.converter.ChangeCategory(kCelsiusToFahrenheit.category);
  opened.converter.ChooseInput(4);
  EXPECT_EQ(opened.converter.Positions(), (ConverterPositions{11, 4, 0}));
}

TEST(UnitConverter, NumbersAreShownWithTwelveDecimals) {
  EXPECT_EQ(kConverterPrecision, 12);
  OpenConverter opened({6, 16, 9}, L"1");
  EXPECT_EQ(opened.converter.OutputLine(), L"3.280839895013");
  opened.converter.EnterText(L"1e15");
  EXPECT_EQ(opened.converter.OutputLine(), L"3.280839895013e+015");
}

/// The shortest text that reads back as exactly `value`.
std::wstring Typed(double value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return {buffer.data(), end};
}

TEST(UnitConverter, VectorsTypedIntoTheField) {
  int typed = 0;
  for (const auto& row : ReadTable("units.tsv")) {
    if (row[0] == "user") continue;
    const OpenConverter opened({Integer(row[1]), Integer(row[2]), Integer(row[3])},
                               Typed(HexDouble(row[6])));
    EXPECT_EQ(opened.converter.Result(), HexDouble(row[7])) << row[4] << " to " << row[5];
    EXPECT_EQ(Narrow(opened.converter.ResultText()), row[8]) << row[4] << " to " << row[5];
    ++typed;
  }
  EXPECT_EQ(typed, 3826);
}

TEST(UnitConverter, TemperatureBlock) {
  const struct {
    int conversion;
    std::wstring_view text;
    std::wstring_view block;
  } cases[] = {
      {0, L"25", L"25 Celsius\r\n=\r\n77 Fahrenheit"},
      {0, L"100", L"100 Celsius\r\n=\r\n212 Fahrenheit"},
      {0, L"-40", L"-40 Celsius\r\n=\r\n-40 Fahrenheit"},
      {1, L"1000", L"1,000 Celsius\r\n=\r\n1,273.15 Kelvin"},
      {2, L" 212", L"212 Fahrenheit\r\n=\r\n100 Celsius"},
      {3, L"32", L"32 Fahrenheit\r\n=\r\n273.15 Kelvin"},
      {4, L"0", L"0 Kelvin\r\n=\r\n-273.15 Celsius"},
      {5, L"273.15", L"273.15 Kelvin\r\n=\r\n32 Fahrenheit"},
  };
  for (const auto& c : cases) {
    OpenConverter opened({11, c.conversion, 0}, c.text);
    EXPECT_EQ(opened.converter.OutputBlock(), c.block);
    EXPECT_EQ(opened.converter.Positions(), (ConverterPositions{11, c.conversion, 0}));
    EXPECT_EQ(opened.converter.OutputLine(), L"0") << "not shown, not touched";
  }
}

TEST(UnitConverter, UserDefinedBlocks) {
  const struct {
    std::wstring_view name;
    std::wstring_view rate;
    std::wstring_view block;
  } cases[] = {
      {L"Inch -> Centimeter", L"2.54", L"1,000 Inch\r\n=\r\n2,540 Centimeter"},
      {L"a -> b", L"-0.5", L"1,000 a\r\n=\r\n-500 b"},
      {L"a -> b", L"12abc", L"1,000 a\r\n=\r\n12,000 b"},
      {L"a -> b", L"none", L"1,000 a\r\n=\r\n0 b"},
      {L"a -> b", L"1e999", L"Out of range(overflow or underflow)"},
      {L"no arrow", L"2", L"1,000 no arrow\r\n=\r\n2,000 "},
      {L"", L"2", L"1,000 \r\n=\r\n2,000 "},
  };
  for (const auto& c : cases) {
    RecordingStore store;
    UserConversions(store).Add({std::wstring(c.name), std::wstring(c.rate)});
    UnitConverter converter(store);
    converter.Open({14, 0, 0}, 0, L"1000");
    EXPECT_EQ(converter.OutputBlock(), c.block) << Narrow(c.name) << " " << Narrow(c.rate);
  }
}

TEST(UnitConverter, OverflowIsShownAndRefused) {
  // Kilometers to picometers, Celsius to Fahrenheit, a division that overflows alone.
  const struct {
    ConverterPositions positions;
    std::wstring_view text;
    bool line;
  } cases[] = {
      {{6, 14, 22}, L"1e300", true},
      {kCelsiusToFahrenheit, L"1.7e308", false},
      {{6, 22, 22}, L"1e300", true},
      {{14, 0, 0}, L"-1.7e308", false},
  };
  for (const auto& c : cases) {
    OpenConverter opened(c.positions, c.text);
    UnitConverter& converter = opened.converter;
    EXPECT_EQ(converter.LastError(), kOverflow);
    EXPECT_EQ(c.line ? converter.OutputLine() : converter.OutputBlock(), kOverflow);
    EXPECT_EQ(converter.Accept(), L"Converting value is error");
    EXPECT_EQ(converter.InputNotice(), L"");
    EXPECT_FALSE(converter.IsResultStale()) << "the sentence is about what is shown";
    EXPECT_EQ(converter.ExpressionText(), L"");
    converter.EnterText(L"1");
    EXPECT_EQ(converter.LastError(), L"");
    EXPECT_EQ(converter.Accept(), L"");
  }
}

TEST(UnitConverter, AnOverflowEndsWithItsText) {
  OpenConverter opened({6, 14, 22}, L"1e300");
  opened.converter.EnterText(L"1e300x");
  EXPECT_EQ(opened.converter.OutputLine(), kOverflow);
  EXPECT_TRUE(opened.converter.IsResultStale());
  EXPECT_EQ(opened.converter.LastError(), L"");
  EXPECT_EQ(opened.converter.Accept(), kNotice);
}

TEST(UnitConverter, APreviousResultIsNotAccepted) {
  OpenConverter opened(kMetersToKilometers, L"1500");
  opened.converter.EnterText(L"15-");
  EXPECT_EQ(opened.converter.OutputLine(), L"1.5");
  EXPECT_EQ(opened.converter.Accept(), kNotice);
  EXPECT_EQ(opened.converter.ExpressionText(), L"");
  opened.converter.EnterText(L"15");
  EXPECT_EQ(opened.converter.Accept(), L"");
}

TEST(UnitConverter, ExpressionsGetTheResultWithoutGrouping) {
  const std::pair<std::wstring_view, std::wstring_view> cases[] = {
      {L"1.2345", L"1234.5"},
      {L"1e6", L"1000000000"},
      {L"-1234567.125", L"-1234567125"},
      {L"1e30", L"1.000000000000e+033"},
      {L"0.001", L"1"}};
  for (const auto& [text, expected] : cases) {
    const OpenConverter opened({6, 14, 16}, text);
    EXPECT_EQ(opened.converter.ExpressionText(), expected);
  }
  const OpenConverter block({14, 0, 0}, L"1000");
  EXPECT_EQ(block.converter.ExpressionText(), L"1500");
  EXPECT_EQ(block.converter.ResultText(), L"1,500") << "what is shown stays grouped";
}

TEST(UnitConverter, TinyValuesUnderflowToZero) {
  OpenConverter opened({7, 12, 9}, L"5e-324");
  EXPECT_EQ(opened.converter.OutputLine(), L"0");
  EXPECT_EQ(opened.converter.Accept(), L"");
}

/// The captions of the "MEM" menu's lines that are shown.
std::vector<std::wstring_view> MenuOf(const UnitConverter& converter) {
  std::vector<std::wstring_view> captions;
  for (const MemoryMenuItem& item : kMemoryMenu) {
    if (converter.HasResult() || !item.needsResult) captions.push_back(item.caption);
  }
  return captions;
}

TEST(ConverterMemory, MenuByState) {
  using Captions = std::vector<std::wstring_view>;
  OpenConverter opened({6, 14, 22}, L"1");
  EXPECT_EQ(MenuOf(opened.converter),
            (Captions{L"Memory +", L"Memory -", L"Memory Recall", L"Memory Clear", L"",
                      L"ReCall MemVar", L"Store MemVar"}));
  opened.converter.EnterText(L"1e300");
  const Captions withoutResult{L"Memory Recall", L"Memory Clear", L"", L"ReCall MemVar"};
  EXPECT_EQ(MenuOf(opened.converter), withoutResult);
  opened.converter.EnterText(L"1");
  EXPECT_EQ(MenuOf(opened.converter).size(), 7u);
  opened.converter.EnterText(L"x");
  EXPECT_EQ(MenuOf(opened.converter), withoutResult);
  EXPECT_EQ(MenuOf(OpenConverter({6, -1, 0}, L"1").converter), withoutResult);
  EXPECT_EQ(MenuOf(OpenConverter({6, 0, -1}, L"1").converter), withoutResult);
}

TEST(ConverterMemory, PlusAndMinus) {
  OpenConverter opened(kMetersToKilometers, L"1500", 10.0);
  opened.converter.MemoryPlus();
  EXPECT_EQ(opened.converter.Memory(), 11.5);
  opened.converter.MemoryMinus();
  opened.converter.MemoryMinus();
  EXPECT_EQ(opened.converter.Memory(), 8.5);
  opened.converter.MemoryClear();
  EXPECT_EQ(opened.converter.Memory(), 0.0);
  opened.converter.MemoryMinus();
  EXPECT_EQ(opened.converter.Memory(), -1.5);
  EXPECT_EQ(opened.converter.OutputLine(), L"1.5");
}

TEST(ConverterMemory, RecallPutsTheValueWithoutGrouping) {
  OpenConverter opened(kMetersToKilometers, L"1", 1234567.5);
  opened.converter.MemoryRecall();
  EXPECT_EQ(opened.converter.InputText(), L"1234567.5");
  EXPECT_EQ(opened.converter.OutputLine(), L"1,234.5675");
  EXPECT_EQ(opened.converter.ResultText(), L"1,234.5675");
  EXPECT_EQ(opened.converter.Memory(), 1234567.5);
}

TEST(ConverterMemory, RecallOfAnOverflowedMemory) {
  OpenConverter opened(kMetersToKilometers, L"1500", std::numeric_limits<double>::infinity());
  opened.converter.MemoryRecall();
  EXPECT_EQ(opened.converter.InputText(), kOverflow);
  EXPECT_EQ(opened.converter.InputNotice(), kNotice);
  EXPECT_EQ(opened.converter.OutputLine(), L"1.5");
  EXPECT_EQ(opened.converter.LastError(), L"");
  EXPECT_EQ(opened.converter.Accept(), kNotice);
}

TEST(ConverterMemory, RecallsAVariable) {
  const struct {
    double variable;
    std::wstring_view input;
    std::wstring_view line;
    std::wstring_view notice;
  } cases[] = {
      {0, L"0", L"0", L""},
      {2500, L"2,500", L"2.5", L""},
      {1234500, L"1,234,500", L"1,234.5", L""},
      {1.5e+013, L"1.500000000000e+013", L"15,000,000,000", L""},
      {-0.25, L"-0.25", L"-0.00025", L""},
      {std::numeric_limits<double>::infinity(), kOverflow, L"0.001", kNotice},
  };
  for (const auto& c : cases) {
    OpenConverter opened(kMetersToKilometers, L"1");
    opened.converter.RecallVariable(c.variable);
    EXPECT_EQ(opened.converter.InputText(), c.input) << c.variable;
    EXPECT_EQ(opened.converter.OutputLine(), c.line) << c.variable;
    EXPECT_EQ(opened.converter.InputNotice(), c.notice) << c.variable;
    EXPECT_EQ(opened.converter.LastError(), L"") << c.variable;
  }
}

TEST(ConverterMemory, ARecalledTextIsTheLastNumberWhereNothingIsConverted) {
  OpenConverter opened({6, -1, -1}, L"1", 2500.0);
  opened.converter.MemoryRecall();
  EXPECT_EQ(opened.converter.InputText(), L"2500");
  EXPECT_EQ(opened.converter.ResultText(), L"2,500");
  EXPECT_EQ(opened.converter.OutputLine(), L"0");
}

TEST(UnitConverter, NothingIsWrittenToTheStore) {
  OpenConverter opened({14, 1, 0}, L"1");
  opened.converter.ChangeCategory(11);
  opened.converter.MemoryPlus();
  opened.converter.ReloadUserConversions();
  EXPECT_TRUE(opened.store.writes.empty());
}

}  // namespace
}  // namespace vexa

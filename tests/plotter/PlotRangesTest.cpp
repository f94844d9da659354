#include "plotter/PlotRanges.h"

#include <gtest/gtest.h>

#include <cfloat>

#include "plotter/PenDrag.h"

namespace vexa {
namespace {

TEST(PlotRanges, OrderIsCheckedXFirst) {
  EXPECT_EQ(CheckRangeOrder({-10, 10, -10, 10}), L"");
  EXPECT_EQ(CheckRangeOrder({1, 1, 5, 5}),
            L"The maximum value of X should be bigger than the minimum value of X.");
  EXPECT_EQ(CheckRangeOrder({2, 1, -1, 1}),
            L"The maximum value of X should be bigger than the minimum value of X.");
  EXPECT_EQ(CheckRangeOrder({1, 2, 5, 5}),
            L"The maximum value of Y should be bigger than the minimum value of Y.");
  EXPECT_EQ(CheckRangeOrder({1, 2, 5, 4}),
            L"The maximum value of Y should be bigger than the minimum value of Y.");
}

TEST(PlotRanges, BoxesAreReadAsNumbers) {
  const RangeReading reading = ReadRanges({L"-1.5", L" 2e3 ", L"1,234.5", L"-0"});
  EXPECT_EQ(reading.sentence, L"");
  EXPECT_FALSE(reading.boxAtFault);
  EXPECT_EQ(reading.ranges, (PlotRanges{-1.5, 2000, 1234.5, 0}));
}

TEST(PlotRanges, TheFirstBoxThatHoldsNoNumberIsAtFault) {
  for (std::size_t box = 0; box < 4; ++box) {
    for (const wchar_t* bad :
         {L"", L" ", L"x", L"1;2", L"inf", L"nan", L"1e999", L"0x10", L"1 2"}) {
      RangeTexts texts{L"-1", L"1", L"-1", L"1"};
      texts[box] = bad;
      if (box < 3) texts[3] = L"worse";
      const RangeReading reading = ReadRanges(texts);
      EXPECT_EQ(reading.sentence, L"Please enter a number.");
      EXPECT_EQ(reading.boxAtFault, static_cast<RangeBox>(box));
    }
  }
}

TEST(PlotRanges, OrderedReadingChecksNumbersFirst) {
  EXPECT_EQ(ReadOrderedRanges({L"1", L"1", L"x", L"1"}).sentence, L"Please enter a number.");
  const RangeReading x = ReadOrderedRanges({L"1", L"1", L"2", L"2"});
  EXPECT_EQ(x.sentence, kXRangeOrder);
  EXPECT_EQ(x.boxAtFault, RangeBox::XMin);
  const RangeReading y = ReadOrderedRanges({L"1", L"2", L"2", L"2"});
  EXPECT_EQ(y.sentence, kYRangeOrder);
  EXPECT_EQ(y.boxAtFault, RangeBox::YMin);
  EXPECT_EQ(ReadOrderedRanges({L"1", L"2", L"2", L"3"}).ranges, (PlotRanges{1, 2, 2, 3}));
}

TEST(PlotRanges, TextsReadBackAsTheSameNumbers) {
  const PlotRanges cases[] = {{-10, 10, -10, 10},
                              {-8.4, 0.1 + 0.2, -1.0 / 3, 2.0 / 3},
                              {-DBL_MAX, DBL_MAX, -DBL_MIN, DBL_TRUE_MIN},
                              {1e15, 1000000000000008.0, -1e-300, 1e300}};
  for (const PlotRanges& ranges : cases) {
    EXPECT_EQ(ReadRanges(TextsOf(ranges)).ranges, ranges);
  }
  EXPECT_EQ(TextsOf({-10, 10, -8.4, 0.25}), (RangeTexts{L"-10", L"10", L"-8.4", L"0.25"}));
}

TEST(PlotRanges, ANumberHasTheDigitsThatFit) {
  struct Case {
    double value;
    std::size_t room;
    const wchar_t* text;
  };
  const Case cases[] = {{1.31186256915e-05, 100, L"1.31186256915e-05"},
                        {1.31186256915e-05, 16, L"1.3118625692e-05"},
                        {1.31186256915e-05, 8, L"1.31e-05"},
                        {1.31186256915e-05, 1, L"1e-05"},
                        {0.25, 4, L"0.25"},
                        {-1.0 / 3, 8, L"-0.33333"},
                        {123456789012.0, 9, L"1.235e+11"},
                        {-1.7976931348623157e308, 10, L"-1.8e+308"},
                        {10, 2, L"10"}};
  for (const Case& c : cases) {
    const std::wstring text =
        FittingText(c.value, [&](std::wstring_view t) { return t.size() <= c.room; });
    EXPECT_EQ(text, c.text) << c.value << " in " << c.room;
  }
}

TEST(PlotRanges, EveryOptionIsOnAtFirst) {
  EXPECT_EQ(PlotOptions(), (PlotOptions{true, true, true}));
}

struct Drag {
  PixelPoint to;
  bool isBox;
};

TEST(PenDrag, NinePixelsAreNoBox) {
  const Drag drags[] = {{{50, 100}, false}, {{59, 200}, false}, {{150, 109}, false},
                        {{60, 110}, true},  {{41, 200}, false}, {{40, 90}, true},
                        {{150, 91}, false}, {{40, 110}, true},  {{-2147483647, 2147483647}, true}};
  for (const Drag& drag : drags) {
    PenDrag pen;
    pen.Begin({50, 100});
    EXPECT_FALSE(pen.IsShown());
    pen.MoveTo(drag.to);
    EXPECT_TRUE(pen.IsShown());
    EXPECT_EQ(pen.IsBox(), drag.isBox) << drag.to.x << "," << drag.to.y;
    EXPECT_EQ(pen.Start(), (PixelPoint{50, 100}));
    EXPECT_EQ(pen.End(), drag.to);
    pen.Hide();
    EXPECT_FALSE(pen.IsShown());
  }
}

}  // namespace
}  // namespace vexa

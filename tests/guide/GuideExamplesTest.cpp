// Every example of the guide gives what the guide says.

#include <gtest/gtest.h>

#include <map>

#include "app/Calculator.h"
#include "converter/UnitConverter.h"
#include "converter/UnitTables.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "engine/ExprParser.h"
#include "guide/GuideBlocks.h"
#include "guide/GuidePages.h"

namespace vexa {
namespace {

using namespace test;

TEST(GuideExamples, EveryBlockIsOfAKindThatIsChecked) {
  std::size_t blocks = 0;
  for (const GuidePage& page : GuidePages()) {
    for (const Block& block : BlocksOf(std::string(page.name))) {
      ++blocks;
      EXPECT_TRUE(block.kind == "calculator" || block.kind == "convert" ||
                  block.kind == "plotter" || block.kind == "1-var" || block.kind == "2-var")
          << page.name << ": " << block.kind;
      EXPECT_FALSE(block.lines.empty()) << page.name;
    }
  }
  EXPECT_GT(blocks, 15u);
}

TEST(GuideExamples, Calculator) {
  const std::map<std::string, BaseType> bases{
      {"hex", BaseType::Hex}, {"bin", BaseType::Bin}, {"oct", BaseType::Oct}};
  const auto blocks = BlocksOfKind("calculator");
  ASSERT_FALSE(blocks.empty());
  for (const Block& block : blocks) {
    MemorySettingsStore store;
    Calculator calculator(store);
    for (const std::string& setting : block.settings) {
      if (setting == "rad") {
        calculator.ToggleAngle();
      } else {
        ASSERT_TRUE(bases.contains(setting)) << setting;
        calculator.SetBase(bases.at(setting));
      }
    }
    for (const std::string& line : block.lines) {
      const auto [expression, result] = Sides(line);
      calculator.Evaluate(Wide(expression));
      EXPECT_EQ(Bytes(calculator.resultLine), result) << block.page << ": " << expression;
    }
  }
}

TEST(GuideExamples, Plotter) {
  for (const Block& block : BlocksOfKind("plotter")) {
    for (const std::string& line : block.lines) {
      const auto [formula, sentence] = Sides(line);
      ExprParser parser;
      parser.Validate(Wide(formula));
      EXPECT_EQ(Bytes(parser.errorText), sentence) << formula;
    }
  }
}

/// The place of `name` in a list of names; the list's size where it is missing.
int PlaceOf(const std::vector<std::wstring>& names, const std::string& name) {
  return static_cast<int>(std::ranges::find(names, Wide(name)) - names.begin());
}

TEST(GuideExamples, Converter) {
  const auto blocks = BlocksOfKind("convert");
  ASSERT_FALSE(blocks.empty());
  for (const Block& block : blocks) {
    for (const std::string& line : block.lines) {
      SCOPED_TRACE(line);
      const auto [question, result] = Sides(line);
      const std::size_t colon = question.find(": ");
      const std::size_t blank = question.find(' ', colon + 2);
      const std::size_t arrow = question.find(" -> ");
      const std::string category = question.substr(0, colon);
      const std::string value = question.substr(colon + 2, blank - colon - 2);
      const std::string input = question.substr(blank + 1, arrow - blank - 1);
      const std::string output = question.substr(arrow + 4);

      MemorySettingsStore store;
      UnitConverter converter(store);
      converter.Open({}, 0.0, Wide(value));
      const auto place = std::ranges::find(kUnitCategories, Wide(category), &UnitCategory::name);
      ASSERT_NE(place, kUnitCategories.end());
      converter.ChangeCategory(static_cast<int>(place - kUnitCategories.begin()));
      const bool oneList = PlaceOf(converter.InputUnits(), input + " -> " + output) <
                           static_cast<int>(converter.InputUnits().size());
      if (oneList) {
        converter.ChooseInput(PlaceOf(converter.InputUnits(), input + " -> " + output));
      } else {
        converter.ChooseInput(PlaceOf(converter.InputUnits(), input));
        converter.ChooseOutput(PlaceOf(converter.OutputUnits(), output));
      }
      EXPECT_EQ(Bytes(converter.ResultText()), result);
    }
  }
}

}  // namespace
}  // namespace vexa

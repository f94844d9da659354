#include <gtest/gtest.h>

#include <iterator>
#include <string_view>
#include <utility>

#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"
#include "engine/Functions.h"

namespace vexa {
namespace {

TEST(Keywords, NamesAndCodesInOrder) {
  const std::pair<std::wstring_view, int> expected[] = {
      {L"sin", 41},  {L"cos", 42}, {L"tan", 43},  {L"asin", 44}, {L"acos", 45}, {L"atan", 46},
      {L"sqrt", 53}, {L"int", 55}, {L"sinh", 50}, {L"cosh", 51}, {L"tanh", 52}, {L"log", 47},
      {L"ln", 48},   {L"exp", 49}, {L"abs", 54},  {L"frac", 56},
  };
  ASSERT_EQ(kKeywords.size(), std::size(expected));
  for (std::size_t i = 0; i < kKeywords.size(); ++i) {
    EXPECT_EQ(kKeywords[i].name, expected[i].first);
    EXPECT_EQ(kKeywords[i].code, expected[i].second);
  }
}

TEST(Keywords, EvaluatorAndParserShareThem) {
  EXPECT_EQ(&CalcEngine::keywords, &ExprParser::keywords);
}

}  // namespace
}  // namespace vexa

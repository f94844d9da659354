#include "engine/Dialects.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vexa {
namespace {

std::set<std::wstring> Texts(std::span<const Word> words, bool refused = false) {
  std::set<std::wstring> texts;
  for (const Word& word : words) {
    if (word.refusal.empty() != refused) texts.emplace(word.text);
  }
  return texts;
}

TEST(Dialects, Expressions) {
  const std::set<std::wstring> decimal{L"pi", L"p", L"c"};
  const std::set<std::wstring> bitwise{L"and", L"or", L"xor", L"xnor", L"not"};
  for (const int base : {1, 2, 3, 4, 0, 5, -1, 2147483647}) {
    const Dialect& dialect = ExpressionDialect(static_cast<BaseType>(base));
    const bool integer = base >= 2 && base <= 4;
    EXPECT_EQ(dialect.operators, integer ? L"+-*/" : L"^+-*/!%") << base;
    EXPECT_EQ(Texts(dialect.words), integer ? bitwise : decimal) << base;
    EXPECT_EQ(dialect.hasFunctions, !integer) << base;
    EXPECT_TRUE(dialect.variables.empty()) << base;
  }
}

TEST(Dialects, BitwiseWords) {
  const std::pair<std::wstring_view, char> words[] = {
      {L"and", 'a'}, {L"or", 'o'}, {L"xor", 'x'}, {L"xnor", 'y'}, {L"not", 'n'}};
  for (const auto& [text, op] : words) {
    int found = 0;
    for (const Word& word : ExpressionDialect(BaseType::Bin).words) {
      if (word.text != text) continue;
      ++found;
      EXPECT_EQ(word.token.op, op);
      EXPECT_EQ(word.token.kind, kOperatorKind);
      EXPECT_EQ(word.token.isOperand, 0);
    }
    EXPECT_EQ(found, 1) << op;
  }
}

TEST(Dialects, FormulasHaveTheWordsOfDecimalAndVariables) {
  using Set = std::set<std::wstring>;
  const Set accepted[] = {{L"x"}, {L"x", L"y"}, {L"x", L"y", L"z"}};
  const Set refused[] = {{L"y", L"z"}, {L"z"}, {}};
  for (std::size_t type = 0; type < 3; ++type) {
    const Dialect& dialect = FormulaDialect(static_cast<FormulaType>(type));
    EXPECT_EQ(dialect.operators, L"^+-*/!%");
    EXPECT_EQ(Texts(dialect.words), Texts(ExpressionDialect(BaseType::Dec).words));
    EXPECT_TRUE(dialect.hasFunctions);
    EXPECT_EQ(Texts(dialect.variables), accepted[type]) << type;
    EXPECT_EQ(Texts(dialect.variables, true), refused[type]) << type;
  }
}

TEST(Dialects, ForeignFormulaTypeAcceptsAllVariables) {
  for (const int type : {3, -1, 2147483647}) {
    const Dialect& dialect = FormulaDialect(static_cast<FormulaType>(type));
    EXPECT_EQ(Texts(dialect.variables).size(), 3u) << type;
  }
}

}  // namespace
}  // namespace vexa

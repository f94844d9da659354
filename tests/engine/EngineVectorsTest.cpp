// The engine on the tables of expected results.

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/AsciiCase.h"
#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

using test::HexDouble;
using test::Integer;
using test::Narrow;
using test::ReadTable;
using test::UlpDistance;
using test::Wide;

/// Where a function of the C library takes part, another library may differ in the last bits.
std::uint64_t AllowedUlps(const std::wstring& expression) {
  const std::wstring lower = ToLowerAscii(expression);
  const bool power = lower.find(L'^') != std::wstring::npos;
  const bool function = std::any_of(kKeywords.begin(), kKeywords.end(), [&](const Keyword& k) {
    return lower.find(k.name) != std::wstring::npos;
  });
  return power || function ? 4 : 0;
}

TEST(EngineVectors, Evaluation) {
  const auto rows = ReadTable("eval.tsv");
  ASSERT_GT(rows.size(), 2900u);
  CalcEngine engine;
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 5u);
    const std::wstring expression = Wide(row[2]);
    engine.baseMode = static_cast<BaseType>(Integer(row[0]));
    engine.angleMode = static_cast<AngleType>(Integer(row[1]));
    engine.EvaluateExpression(expression);
    EXPECT_EQ(Narrow(engine.errorText), row[4]) << "base " << row[0] << ": " << row[2];
    if (row[3] == "-") {
      EXPECT_EQ(engine.result, 0.0) << row[2];
    } else {
      EXPECT_LE(UlpDistance(engine.result, HexDouble(row[3])), AllowedUlps(expression))
          << "base " << row[0] << " angle " << row[1] << ": " << row[2] << " gives "
          << engine.result;
    }
  }
}

TEST(EngineVectors, Validation) {
  const auto rows = ReadTable("validate.tsv");
  ASSERT_GT(rows.size(), 500u);
  ExprParser parser;
  for (const auto& row : rows) {
    ASSERT_EQ(row.size(), 4u);
    parser.formulaType = static_cast<FormulaType>(Integer(row[0]));
    parser.Validate(Wide(row[1]));
    EXPECT_EQ(Narrow(parser.errorText), row[2]) << "type " << row[0] << ": " << row[1];
    if (row[3] != "-") {
      EXPECT_EQ(parser.tokenCount, Integer(row[3])) << row[1];
    }
  }
}

}  // namespace
}  // namespace vexa

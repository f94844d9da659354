#include "engine/EngineErrors.h"

#include <gtest/gtest.h>

#include "engine/CalcEngine.h"
#include "engine/ExprParser.h"

namespace vexa {
namespace {

struct ErrorCase {
  int code;
  std::wstring_view argument;
  std::wstring_view sentence;
};

const ErrorCase kErrors[] = {
    {0, L"ignored", L"Out of range(overflow or underflow)"},
    {1, L"ignored", L"Not matched '(' and ')'."},
    {2, L"ignored", L"Expression error."},
    {3, L"ignored", L"Too many operator."},
    {4, L"sin", L"(sin) needs an argument."},
    {4, L"!", L"(!) needs an argument."},
    {5, L"xyz", L"xyz is not supported."},
    {5, L"#", L"# is not supported."},
    {5, L"", L" is not supported."},
    {5, L"abcdefghijklmnopq", L"abcdefghijklmnopq is not supported."},
    {5, L"abcdefghijklmnopqr", L"abcdefghijklmno... is not supported."},
    {5, L"abcdefghijklmnopqrstuvwxyz", L"abcdefghijklmno... is not supported."},
    {6, L"Division", L"Division exceeded calculation limit."},
    {6, L">>", L">> exceeded calculation limit."},
    {6, L"abcdefghijklmnopqr", L"abcdefghijklmnopqr exceeded calculation limit."},
    {7, L"!", L"! is not supported non-integer."},
    {7, L"Combi..", L"Combi.. is not supported non-integer."},
    {8, L"ignored", L"number exceeded length limit."},
    {9, L"ignored", L"Expression is null."},
    {10, L"Can not use variable Y", L"Can not use variable Y"},
    {10, L"", L""},
    {11, L"argument", L"current"},
    {-1, L"argument", L"current"},
    {2147483647, L"argument", L"current"},
};

TEST(EngineErrors, Sentences) {
  for (const ErrorCase& c : kErrors) {
    EXPECT_EQ(ErrorText(static_cast<ErrorCode>(c.code), c.argument, L"current"), c.sentence)
        << c.code;
  }
}

template <typename Reporter>
class EngineErrorReporter : public testing::Test {};
using Reporters = testing::Types<CalcEngine, ExprParser>;
TYPED_TEST_SUITE(EngineErrorReporter, Reporters);

TYPED_TEST(EngineErrorReporter, StoresTheSentenceAndRaisesTheFlag) {
  for (const ErrorCase& c : kErrors) {
    TypeParam reporter;
    reporter.errorText = L"current";
    reporter.ReportError(static_cast<ErrorCode>(c.code), c.argument);
    EXPECT_EQ(reporter.errorText, c.sentence);
    EXPECT_EQ(reporter.errorFlag, 1) << c.code;
  }
}

TYPED_TEST(EngineErrorReporter, LaterReportReplacesTheSentence) {
  TypeParam reporter;
  reporter.ReportError(ErrorCode::LengthLimit);
  reporter.ReportError(ErrorCode::NullExpression);
  EXPECT_EQ(reporter.errorText, L"Expression is null.");
}

}  // namespace
}  // namespace vexa

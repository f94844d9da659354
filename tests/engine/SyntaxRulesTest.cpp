#include "engine/SyntaxRules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "engine/CalcEngine.h"

namespace vexa {
namespace {

using std::string_view;

// Records in writing: "0" a number, "X" "Y" "Z" variables, "F" a function, else the operator.

Token RecordOf(char mark) {
  switch (mark) {
    case '0':
      return {.isOperand = 1, .value = 5.0};
    case 'X':
    case 'Y':
    case 'Z':
      return {.op = static_cast<signed char>(mark - 'X' + 'x'), .isOperand = 1};
    case 'F':
      return {.op = 'F', .funcCode = 41, .kind = kFunctionKind};
    case '(':
    case ')':
      return {.op = static_cast<signed char>(mark), .kind = kParenthesisKind};
    default:
      return {.op = static_cast<signed char>(mark), .kind = kOperatorKind};
  }
}

/// The error code of checking these records; -1: accepted.
int Checked(SyntaxRules rules, string_view marks) {
  CalcEngine list;
  for (const char mark : marks) {
    list.tokens[static_cast<std::size_t>(list.tokenCount++)] = RecordOf(mark);
  }
  CheckSyntax(rules, list);
  if (list.errorText.empty()) return -1;
  if (list.errorText == L"Not matched '(' and ')'.") return 1;
  return list.errorText == L"Expression error." ? 2 : 99;
}

// A second statement of the rules, record by record, as conditions instead of sets.

bool In(char mark, string_view marks) {
  return marks.find(mark) != string_view::npos;
}
bool IsOperand(char mark) {
  return In(mark, "0XYZ");
}
constexpr string_view kDecimalOperators = "^+-*/!%pc<>";

struct Place {
  char previous;  ///< 0: first record
  char current;
  char next;  ///< 0: last record
  bool First() const { return previous == 0; }
  bool Last() const { return next == 0; }
};

bool ParenthesisFits(const Place& p) {
  if (p.current == ')') return p.previous != '(' && p.next != '(';
  return p.previous != ')' && p.next != ')';
}

bool DecimalOperatorFits(const Place& p) {
  if (p.Last() && p.current != '!') return false;
  if (p.First() && In(p.current, "*/^!%pc<>")) return false;
  if (In(p.current, "+-")) return IsOperand(p.next) || In(p.next, "F(+-");
  if (p.current == '!') {
    return (IsOperand(p.previous) || p.previous == ')') && (p.Last() || In(p.next, ")+-*/^%pc<>"));
  }
  const bool behindOperator = p.current == '/' && In(p.previous, kDecimalOperators);
  return (IsOperand(p.previous) || In(p.previous, ")!") || behindOperator) &&
         (IsOperand(p.next) || In(p.next, "(+-F/"));
}

bool DecimalFits(const Place& p) {
  if (In(p.current, kDecimalOperators)) return DecimalOperatorFits(p);
  if (IsOperand(p.current)) return p.previous != ')' && p.next != '(' && p.next != 'F';
  return p.current == 'F' || ParenthesisFits(p);
}

bool FormulaFits(const Place& p) {
  if (!IsOperand(p.current)) return DecimalFits(p);
  return (p.First() || !In(p.previous, ")XYZF")) && (p.Last() || !In(p.next, "(XYZF"));
}

bool BaseFits(const Place& p) {
  if (In(p.current, "+-*/aoxyn<>")) {
    if (p.Last()) return false;
    if (p.First() && In(p.current, "*/aoxy<>")) return false;
  }
  const bool behindValue = IsOperand(p.previous) || p.previous == ')';
  if (In(p.current, "+-")) return IsOperand(p.next) || In(p.next, "n(+-");
  if (In(p.current, "aoxy")) return behindValue && (IsOperand(p.next) || In(p.next, "(n"));
  if (p.current == 'n') {
    return (p.First() || In(p.previous, "*/+-<>(aoxy")) && (IsOperand(p.next) || p.next == '(');
  }
  if (In(p.current, "*/<>")) return behindValue && (IsOperand(p.next) || In(p.next, "(+-n"));
  if (IsOperand(p.current)) return p.previous != ')' && p.next != '(';
  return ParenthesisFits(p);
}

int Expected(SyntaxRules rules, string_view marks) {
  int depth = 0;
  for (const char mark : marks) depth += (mark == '(') - (mark == ')');
  if (depth != 0) return 1;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const Place place{i > 0 ? marks[i - 1] : '\0', marks[i],
                      i + 1 < marks.size() ? marks[i + 1] : '\0'};
    const bool fits = rules == SyntaxRules::Decimal   ? DecimalFits(place)
                      : rules == SyntaxRules::Formula ? FormulaFits(place)
                                                      : BaseFits(place);
    if (!fits) return 2;
  }
  return -1;
}

/// Every sequence of up to four of these records.
std::vector<std::string> Sequences(string_view alphabet) {
  std::vector<std::string> sequences{""};
  for (std::size_t i = 0; i < sequences.size(); ++i) {
    if (sequences[i].size() == 4) continue;
    for (const char mark : alphabet) sequences.push_back(sequences[i] + mark);
  }
  return sequences;
}

void ExpectAgreement(SyntaxRules rules, string_view alphabet) {
  int accepted = 0;
  for (const std::string& marks : Sequences(alphabet)) {
    const int expected = Expected(rules, marks);
    ASSERT_EQ(Checked(rules, marks), expected) << marks;
    accepted += expected == -1;
  }
  EXPECT_GT(accepted, 100);
}

TEST(SyntaxRules, DecimalNeighbours) {
  ExpectAgreement(SyntaxRules::Decimal, "0F()^+-*/!%pc<>");
}
TEST(SyntaxRules, FormulaNeighbours) {
  ExpectAgreement(SyntaxRules::Formula, "0XYZF()^+-*/!%pc<>");
}
TEST(SyntaxRules, BaseNeighbours) {
  ExpectAgreement(SyntaxRules::Base, "0()+-*/aoxyn<>");
}

TEST(SyntaxRules, Table) {
  struct RuleCase {
    SyntaxRules rules;
    string_view marks;
    int error;
  };
  using enum SyntaxRules;
  const RuleCase cases[] = {
      {Decimal, "", -1},      {Decimal, "0+0*0", -1}, {Decimal, "0*-0", -1},
      {Decimal, "0*/0", -1},  {Decimal, "0+/0", 2},   {Decimal, "0-/0", 2},
      {Decimal, "/0", 2},     {Decimal, "(/0)", 2},   {Decimal, "F/0", 2},
      {Decimal, "0//0", -1},  {Decimal, "0!!", 2},    {Decimal, "0!/0", -1},
      {Decimal, "!", 2},      {Decimal, "0!", -1},    {Decimal, "0!0", 2},
      {Decimal, "00", -1},    {Decimal, "(0)(0)", 2}, {Decimal, "0(0)", 2},
      {Decimal, "(0)0", 2},   {Decimal, "()", 2},     {Decimal, "F0", -1},
      {Decimal, "F", -1},     {Decimal, "FF0", -1},   {Decimal, "(F)+0", -1},
      {Decimal, "(0", 1},     {Decimal, "0)", 1},     {Decimal, "(0)+0)*", 1},
      {Decimal, "+-+-0", -1}, {Decimal, "0+", 2},     {Decimal, ")0(", 2},
      {Formula, "X^0", -1},   {Formula, "0X", 2},     {Formula, "XY", 2},
      {Formula, "X(0)", 2},   {Formula, "F0", 2},     {Formula, "FX", 2},
      {Formula, "F(X)", -1},  {Formula, "F-X", -1},   {Formula, "00", -1},
      {Base, "n0", -1},       {Base, "nn0", 2},       {Base, "0n0", 2},
      {Base, "0an0", -1},     {Base, "0a-0", 2},      {Base, "-n0", -1},
      {Base, "n-0", 2},       {Base, "0*-0", -1},     {Base, "0*/0", 2},
      {Base, "(n0)", -1},     {Base, ")n0(", 2},
  };
  for (const RuleCase& c : cases) EXPECT_EQ(Checked(c.rules, c.marks), c.error) << c.marks;
}

}  // namespace
}  // namespace vexa

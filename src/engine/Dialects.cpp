#include "engine/Dialects.h"

#include <array>

#include "engine/Keywords.h"
#include "engine/NumberReaders.h"

namespace vexa {
namespace {

constexpr Token Operand(double value) {
  return {.isOperand = 1, .value = value};
}
constexpr Token Variable(char name) {
  return {.op = static_cast<signed char>(name), .isOperand = 1};
}
constexpr Token Operator(char op) {
  return {.op = static_cast<signed char>(op), .kind = kOperatorKind};
}
constexpr Token Function(std::int32_t code) {
  return {.op = 'F', .funcCode = code, .kind = kFunctionKind};
}

/// The double nearest to pi.
constexpr double kPi = 3.141592653589793;

constexpr std::size_t kOtherDecimalWords = 3;

/// "pi", nPr, nCr and the functions.
constexpr auto kDecimalWords = [] {
  std::array<Word, kKeywords.size() + kOtherDecimalWords> words{{
      {L"pi", Operand(kPi)},
      {L"p", Operator('p')},
      {L"c", Operator('c')},
  }};
  for (std::size_t i = 0; i < kKeywords.size(); ++i) {
    words[kOtherDecimalWords + i] = {kKeywords[i].name, Function(kKeywords[i].code)};
  }
  return words;
}();

constexpr std::array<Word, 5> kBaseWords{{
    {L"and", Operator('a')},
    {L"or", Operator('o')},
    {L"xor", Operator('x')},
    {L"xnor", Operator('y')},
    {L"not", Operator('n')},
}};

constexpr Word kX{L"x", Variable('x')};
constexpr Word kY{L"y", Variable('y')};
constexpr Word kZ{L"z", Variable('z')};
constexpr Word kRefusedY{L"y", Variable('y'), L"Can not use variable Y"};
constexpr Word kRefusedZ{L"z", Variable('z'), L"Can not use variable Z"};

constexpr std::array<Word, 3> kVariablesX{kX, kRefusedY, kRefusedZ};
constexpr std::array<Word, 3> kVariablesXY{kX, kY, kRefusedZ};
constexpr std::array<Word, 3> kVariablesXYZ{kX, kY, kZ};

constexpr std::wstring_view kDecimalOperators = L"^+-*/!%";
constexpr std::wstring_view kBaseOperators = L"+-*/";

constexpr Dialect kDecimal{kDecimalOperators, kDecimalWords, {}, ReadDecimalNumber};
constexpr Dialect kHexadecimal{kBaseOperators, kBaseWords, {}, ReadHexNumber};
constexpr Dialect kBinary{kBaseOperators, kBaseWords, {}, ReadBinaryNumber};
constexpr Dialect kOctal{kBaseOperators, kBaseWords, {}, ReadOctalNumber};
constexpr Dialect kFormulaX{kDecimalOperators, kDecimalWords, kVariablesX, ReadDecimalNumber};
constexpr Dialect kFormulaXY{kDecimalOperators, kDecimalWords, kVariablesXY, ReadDecimalNumber};
constexpr Dialect kFormulaXYZ{kDecimalOperators, kDecimalWords, kVariablesXYZ, ReadDecimalNumber};

}  // namespace

const Dialect& ExpressionDialect(BaseType base) {
  switch (base) {
    case BaseType::Hex:
      return kHexadecimal;
    case BaseType::Bin:
      return kBinary;
    case BaseType::Oct:
      return kOctal;
    case BaseType::Dec:
      break;
  }
  return kDecimal;
}

const Dialect& FormulaDialect(FormulaType type) {
  switch (type) {
    case FormulaType::X:
      return kFormulaX;
    case FormulaType::XY:
      return kFormulaXY;
    case FormulaType::XYZ:
      break;
  }
  return kFormulaXYZ;
}

}  // namespace vexa

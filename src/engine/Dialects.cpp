#include "engine/Dialects.h"

#include <array>

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
/// The double nearest to pi.
constexpr double kPi = 3.141592653589793;

constexpr std::array kDecimalWords{
    Word{L"pi", Operand(kPi)},
    Word{L"p", Operator('p')},
    Word{L"c", Operator('c')},
};

constexpr std::array kBaseWords{
    Word{L"and", Operator('a')},  Word{L"or", Operator('o')},  Word{L"xor", Operator('x')},
    Word{L"xnor", Operator('y')}, Word{L"not", Operator('n')},
};

constexpr Word kX{L"x", Variable('x')};
constexpr Word kY{L"y", Variable('y')};
constexpr Word kZ{L"z", Variable('z')};
constexpr Word kRefusedY{L"y", Variable('y'), L"Can not use variable Y"};
constexpr Word kRefusedZ{L"z", Variable('z'), L"Can not use variable Z"};

constexpr std::array kVariablesX{kX, kRefusedY, kRefusedZ};
constexpr std::array kVariablesXY{kX, kY, kRefusedZ};
constexpr std::array kVariablesXYZ{kX, kY, kZ};

constexpr std::wstring_view kDecimalOperators = L"^+-*/!%";
constexpr std::wstring_view kBaseOperators = L"+-*/";

constexpr Dialect Decimal(std::span<const Word> variables) {
  return {kDecimalOperators, kDecimalWords, variables, ReadDecimalNumber, true};
}
constexpr Dialect kDecimal = Decimal({});
constexpr Dialect kFormulaX = Decimal(kVariablesX);
constexpr Dialect kFormulaXY = Decimal(kVariablesXY);
constexpr Dialect kFormulaXYZ = Decimal(kVariablesXYZ);

constexpr Dialect Integer(NumberReader readNumber) {
  return {kBaseOperators, kBaseWords, {}, readNumber, false};
}
constexpr Dialect kHexadecimal = Integer(ReadHexNumber);
constexpr Dialect kBinary = Integer(ReadBinaryNumber);
constexpr Dialect kOctal = Integer(ReadOctalNumber);

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

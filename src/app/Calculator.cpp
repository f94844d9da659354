#include "app/Calculator.h"

#include "display/FormatResult.h"
#include "display/SettingsLayout.h"

namespace vexa {
namespace {

/// A stored base outside the four is decimal.
BaseType ValidBase(int stored) {
  return stored >= static_cast<int>(BaseType::Dec) && stored <= static_cast<int>(BaseType::Oct)
             ? static_cast<BaseType>(stored)
             : BaseType::Dec;
}

}  // namespace

Calculator::Calculator(SettingsStore& settingsStore) : macros(settingsStore), store(settingsStore) {
  angleType = static_cast<AngleType>(Read(store, settings::kAngleType));
  converterPositions.category = Read(store, settings::kClassPos);
  converterPositions.input = Read(store, settings::kInputTypePos);
  converterPositions.output = Read(store, settings::kOutputTypePos);
  displayType = static_cast<DisplayType>(Read(store, settings::kDisplayType));
  precision = Read(store, settings::kPrecision);
  macros.LoadMacroTable();
  history.Load(store);
  baseType = ValidBase(Read(store, settings::kBaseType));
}

void Calculator::Save() const {
  Write(store, settings::kAngleType, static_cast<int>(angleType));
  Write(store, settings::kBaseType, static_cast<int>(baseType));
  Write(store, settings::kDisplayType, static_cast<int>(displayType));
  Write(store, settings::kPrecision, precision);
  WritePositions();
  history.Save(store);
}

void Calculator::WritePositions() const {
  Write(store, settings::kClassPos, converterPositions.category);
  Write(store, settings::kInputTypePos, converterPositions.input);
  Write(store, settings::kOutputTypePos, converterPositions.output);
}

void Calculator::Evaluate(std::wstring_view editText) {
  // Copied: it may be an entry of the history or another text that changes here.
  Compute(std::wstring(editText));
  history.Save(store);
}

void Calculator::Compute(const std::wstring& typed) {
  const LineOutcome outcome = evaluator.Evaluate(typed, macros, angleType, baseType);
  lastError = evaluator.error;
  answer = evaluator.value;
  if (outcome != LineOutcome::Value) {
    resultLine = outcome == LineOutcome::Empty ? LineEvaluator::kNullExpression : lastError;
    // What the engine refused can be recalled and mended.
    if (outcome == LineOutcome::EngineError) history.AddHistory(typed);
    return;
  }
  ShowAnswer();
  if (history.IsEmpty() || history.At(history.Count()) != typed) {
    history.AddHistory(ResultEntry(baseType, resultLine));
    history.AddHistory(typed);
  }
}

void Calculator::SetBase(BaseType target) {
  if (target == baseType) return;
  baseType = target;
  Write(store, settings::kBaseType, static_cast<int>(baseType));
  ShowAnswer();
}

void Calculator::ToggleAngle() {
  angleType = angleType == AngleType::Degrees ? AngleType::Radians : AngleType::Degrees;
  Write(store, settings::kAngleType, static_cast<int>(angleType));
}

void Calculator::ShowAnswer() {
  resultLine = FormatResult(answer, displayType, precision, baseType, lastError);
}

void Calculator::SetDisplay(DisplayType type, int decimals) {
  displayType = type;
  precision = decimals;
  Write(store, settings::kDisplayType, static_cast<int>(displayType));
  Write(store, settings::kPrecision, precision);
  if (lastError.empty()) ShowAnswer();
}

std::wstring Calculator::RecallValueText(double value) const {
  return FormatResult(value, DisplayType::FloatingPoint, precision, baseType);
}

std::wstring Calculator::MemoryVariableText() const {
  return FormatResult(answer, DisplayType::FloatingPoint, precision, BaseType::Dec);
}

std::wstring Calculator::ConverterInput() const {
  return ConverterInputText(answer, lastError, displayType, precision);
}

void Calculator::TakeFromConverter(const ConverterPositions& positions, double memoryValue) {
  converterPositions = positions;
  memory = memoryValue;
  WritePositions();
}

std::wstring Calculator::RecallHistory(int index) const {
  return RecallText(history.At(index), baseType, precision);
}

}  // namespace vexa

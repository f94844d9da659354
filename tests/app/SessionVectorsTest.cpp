// Whole calculator sessions against expected results: macros, "=", base switches, history, recall.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/Calculator.h"
#include "display/FormatResult.h"
#include "display/MemorySettingsStore.h"
#include "display/SettingsLayout.h"
#include "engine/AsciiCase.h"
#include "support/Vectors.h"

namespace vexa {
namespace {

std::wstring Text(const QJsonValue& value) {
  return value.toString().toStdWString();
}

void StoreMacros(SettingsStore& store, const QJsonArray& macros) {
  Write(store, settings::kMacroCount, static_cast<int>(macros.size()));
  for (int i = 0; i < macros.size(); ++i) {
    const QJsonValue macro = macros[i];
    Write(store, settings::kMacroName, i, Text(macro["name"]));
    Write(store, settings::kMacroType, i, Text(macro["type"]));
    Write(store, settings::kMacroFormula, i, Text(macro["formula"]));
  }
}

void StoreSettings(SettingsStore& store, const QJsonValue& values) {
  Write(store, settings::kAngleType, values["angle"].toInt());
  Write(store, settings::kBaseType, values["base"].toInt());
  Write(store, settings::kDisplayType, values["display_type"].toInt());
  Write(store, settings::kPrecision, values["precision"].toInt());
}

void RunStep(Calculator& calculator, const QJsonObject& step) {
  if (step.contains("angle")) {
    calculator.angleType = static_cast<AngleType>(step["angle"].toInt());
  }
  if (step.contains("display_type")) {
    calculator.displayType = static_cast<DisplayType>(step["display_type"].toInt());
  }
  if (step.contains("base")) {
    calculator.SetBase(static_cast<BaseType>(step["base"].toInt()));
    EXPECT_EQ(calculator.resultLine, Text(step["result_line_after_base"]));
  }
  calculator.Evaluate(Text(step["input"]));
  EXPECT_EQ(calculator.resultLine, Text(step["result_line"]));
  EXPECT_EQ(calculator.lastError, Text(step["last_error"]));
  // Functions and powers of another C library may differ in the last bits.
  EXPECT_LE(test::UlpDistance(calculator.answer,
                              test::HexDouble(step["answer"].toString().toStdString())),
            4u);
  EXPECT_EQ(calculator.history.Count(), step["history_count"].toInt());
}

void CheckEnd(Calculator& calculator, const QJsonObject& session) {
  const QJsonArray history = session["history"].toArray();
  const QJsonArray captions = session["captions"].toArray();
  ASSERT_EQ(calculator.history.Count(), history.size());
  for (int i = 0; i < history.size(); ++i) {
    EXPECT_EQ(calculator.history.At(i + 1), Text(history[i]));
    EXPECT_EQ(calculator.history.Caption(i + 1), Text(captions[i]));
  }
  std::wstring lastError;
  EXPECT_EQ(FormatResult(calculator.answer, DisplayType::FloatingPoint, calculator.precision,
                         BaseType::Dec, lastError),
            Text(session["memory_text"]));
  for (const QJsonValue recall : session["recall"].toArray()) {
    calculator.SetBase(static_cast<BaseType>(recall["base"].toInt()));
    EXPECT_EQ(calculator.RecallHistory(recall["index"].toInt()), Text(recall["text"]));
  }
}

TEST(SessionVectors, Sessions) {
  QFile file(QString::fromStdString(test::VectorPath("session.jsonl")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int sessions = 0;
  int steps = 0;
  while (!file.atEnd()) {
    const QJsonObject session = QJsonDocument::fromJson(file.readLine()).object();
    SCOPED_TRACE("session " + std::to_string(session["id"].toInt()));
    MemorySettingsStore store;
    StoreMacros(store, session["macros"].toArray());
    StoreSettings(store, session["settings"]);
    Calculator calculator(store);
    for (const QJsonValue step : session["steps"].toArray()) {
      SCOPED_TRACE(step["input"].toString().toStdString());
      RunStep(calculator, step.toObject());
      ++steps;
    }
    CheckEnd(calculator, session);
    ++sessions;
  }
  EXPECT_EQ(sessions, 150);
  EXPECT_EQ(steps, 1557);
}

}  // namespace
}  // namespace vexa

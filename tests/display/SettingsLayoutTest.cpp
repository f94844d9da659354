#include "display/SettingsLayout.h"

#include <gtest/gtest.h>

#include <variant>

#include "support/RecordingStore.h"

namespace vexa {
namespace {

using test::RecordingStore;

/// What a store without content was asked for, and what came back.
struct Row {
  std::wstring place;
  std::variant<int, std::wstring> value;
};

TEST(SettingsLayout, SectionsEntriesKindsAndDefaults) {
  RecordingStore store;
  using namespace settings;
  const Row rows[] = {
      {L"Config/Mode", Read(store, kMode)},
      {L"Config/Angle Type", Read(store, kAngleType)},
      {L"Config/Base Type", Read(store, kBaseType)},
      {L"Config/Display Type", Read(store, kDisplayType)},
      {L"Config/Precision", Read(store, kPrecision)},
      {L"Convert/ClassPos", Read(store, kClassPos)},
      {L"Convert/InputTypePos", Read(store, kInputTypePos)},
      {L"Convert/OutputTypePos", Read(store, kOutputTypePos)},
      {L"History/CalHistoryCount", Read(store, kCalHistoryCount)},
      {L"History/CalHistory1", Read(store, kCalHistory, 1)},
      {L"History/CalHistory10", Read(store, kCalHistory, 10)},
      {L"History/GrapHistoryCount", Read(store, kGrapHistoryCount)},
      {L"History/GrapHistory1", Read(store, kGrapHistory, 1)},
      {L"MacroInfo/TotalNumber", Read(store, kMacroCount)},
      {L"Macro0/Name", Read(store, kMacroName, 0)},
      {L"Macro59/Type", Read(store, kMacroType, 59)},
      {L"Macro7/Formula", Read(store, kMacroFormula, 7)},
      {L"Grapher/Grapher FunTotalNumber", Read(store, kFunctionCount)},
      {L"Grapher/Fun0", Read(store, kFunction, 0)},
      {L"Grapher/X Min", Read(store, kXMin)},
      {L"Grapher/X Max", Read(store, kXMax)},
      {L"Grapher/Y Min", Read(store, kYMin)},
      {L"Grapher/Y Max", Read(store, kYMax)},
      {L"MemoryVar/Var0", Read(store, kMemoryVariable, 0)},
      {L"MemoryVar/Var19", Read(store, kMemoryVariable, 19)},
      {L"Converter/UserDefine_TotalNumber", Read(store, kConversionCount)},
      {L"UserDefine_Convert_0/ConvType", Read(store, kConversionName, 0)},
      {L"UserDefine_Convert_12/Rate", Read(store, kConversionRate, 12)},
  };
  const std::variant<int, std::wstring> defaults[] = {
      1,   1,   1,   3, 5,   -1,     -1,    -1,     0,     L"",  L"",  0, L"", 0,
      L"", L"", L"", 0, L"", L"-10", L"10", L"-10", L"10", L"0", L"0", 0, L"", L"0",
  };
  ASSERT_EQ(std::size(rows), std::size(defaults));
  ASSERT_EQ(store.reads.size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(store.reads[i], rows[i].place);
    EXPECT_EQ(rows[i].value, defaults[i]) << i;
  }
}

TEST(SettingsLayout, Key) {
  EXPECT_EQ(settings::kSettingsKey, L"Vexa Calculator");
}

TEST(SettingsLayout, WritesWhereItReads) {
  RecordingStore store;
  using namespace settings;
  Write(store, kMode, 4);
  Write(store, kXMin, L"-2.5");
  Write(store, kFunction, 2, L"x^2");
  Write(store, kMacroName, 59, L"area");
  EXPECT_EQ(Read(store, kMode), 4);
  EXPECT_EQ(Read(store, kXMin), L"-2.5");
  EXPECT_EQ(Read(store, kFunction, 2), L"x^2");
  EXPECT_EQ(Read(store, kMacroName, 59), L"area");
  EXPECT_EQ(store.writes, store.reads);
}

TEST(SettingsLayout, IndexedNames) {
  const std::pair<int, std::wstring_view> cases[] = {
      {0, L"Fun0"}, {7, L"Fun7"}, {10, L"Fun10"}, {-1, L"Fun-1"}};
  for (const auto& [index, name] : cases) EXPECT_EQ(settings::Indexed(L"Fun", index), name);
}

TEST(SettingsLayout, CountsAreBroughtWithinTheCapacity) {
  const std::pair<int, int> cases[] = {
      {0, 0}, {10, 10}, {11, 10}, {25, 10}, {2147483647, 10}, {-1, 0}, {-2147483647 - 1, 0}};
  for (const auto& [stored, count] : cases) EXPECT_EQ(settings::ClampCount(stored, 10), count);
}

}  // namespace
}  // namespace vexa

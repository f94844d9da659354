#include "display/FileSettingsStore.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace vexa {
namespace {

using test::Bytes;
using test::PutBytes;

class FileSettingsStoreTest : public ::testing::Test {
 protected:
  /// A newly opened store on this test's folder, after the one before has written.
  FileSettingsStore& Open() {
    store.reset();
    store = std::make_unique<FileSettingsStore>(folder.path);
    store->SetSettingsKey(L"Vexa Calculator");
    return *store;
  }
  std::filesystem::path FileName() const { return folder / "Vexa Calculator/settings.json"; }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSettingsStore> store;
};

TEST_F(FileSettingsStoreTest, ValuesAreFoundAgain) {
  EXPECT_TRUE(Open().WriteSettingInt(L"Config", L"Angle Type", 2));
  EXPECT_TRUE(store->WriteSettingString(L"Macro0", L"Formula", L"X*2"));
  EXPECT_EQ(Open().ReadSettingInt(L"Config", L"Angle Type", 1), 2);
  EXPECT_EQ(store->ReadSettingString(L"Macro0", L"Formula", L""), L"X*2");
  EXPECT_TRUE(std::filesystem::exists(FileName()));
}

TEST_F(FileSettingsStoreTest, AFreshStoreGivesDefaults) {
  EXPECT_EQ(Open().ReadSettingInt(L"Config", L"Mode", 1), 1);
  EXPECT_EQ(store->ReadSettingString(L"Grapher", L"X Min", L"-10"), L"-10");
}

TEST_F(FileSettingsStoreTest, WithoutAKeyThereAreDefaultsOnly) {
  FileSettingsStore keyless(folder.path);
  EXPECT_FALSE(keyless.WriteSettingInt(L"Config", L"Mode", 3));
  EXPECT_EQ(keyless.ReadSettingInt(L"Config", L"Mode", 1), 1);
  EXPECT_TRUE(keyless.Flush());
  EXPECT_TRUE(keyless.TakeNotices().empty());
}

TEST_F(FileSettingsStoreTest, ChangesAreReported) {
  int changes = 0;
  Open().changed = [&] { ++changes; };
  store->WriteSettingInt(L"Config", L"Mode", 3);
  store->WriteSettingString(L"Config", L"Text", L"t");
  EXPECT_EQ(changes, 2);
  EXPECT_TRUE(store->Flush());
  EXPECT_NE(Bytes(FileName()).find("\"Mode\": 3"), std::string::npos);
}

TEST_F(FileSettingsStoreTest, KindsAreKept) {
  Open().WriteSettingInt(L"S", L"number", 12);
  store->WriteSettingString(L"S", L"text", L"12");
  store->Flush();
  EXPECT_EQ(Bytes(FileName()),
            "{\n  \"S\": {\n    \"number\": 12,\n    \"text\": \"12\"\n  }\n}\n");
}

TEST_F(FileSettingsStoreTest, ANumberAndItsTextAreReadAsEither) {
  PutBytes(FileName(), "{\"Config\":{\"Mode\":\"2\",\"Base Type\":\" -3 \",\"Precision\":7}}");
  EXPECT_EQ(Open().ReadSettingInt(L"Config", L"Mode", 1), 2);
  EXPECT_EQ(store->ReadSettingInt(L"Config", L"Base Type", 1), -3);
  EXPECT_EQ(store->ReadSettingString(L"Config", L"Precision", L""), L"7");
}

TEST_F(FileSettingsStoreTest, TextsThatAreNoIntegersGiveDefaults) {
  int n = 0;
  for (const wchar_t* const text : {L"", L" ", L"two", L"1.5", L"1 2", L"2147483648",
                                    L"-2147483649", L"-", L"0x10", L"\x0661"}) {
    const std::wstring entry = std::to_wstring(n++);
    Open().WriteSettingString(L"S", entry, text);

    EXPECT_EQ(store->ReadSettingInt(L"S", entry, 5), 5) << n;
  }
}

TEST_F(FileSettingsStoreTest, CountsComeBackAsTheyAre) {
  PutBytes(FileName(),
           "{\"History\":{\"CalHistoryCount\":2147483647},\"MacroInfo\":{\"TotalNumber\":-1}}");
  EXPECT_EQ(Open().ReadSettingInt(L"History", L"CalHistoryCount", 0), 2147483647);
  EXPECT_EQ(store->ReadSettingInt(L"MacroInfo", L"TotalNumber", 0), -1);
}

TEST_F(FileSettingsStoreTest, NoticesComeThrough) {
  PutBytes(FileName(), "damaged");
  EXPECT_EQ(Open().TakeNotices().size(), 1U);
}

TEST_F(FileSettingsStoreTest, WithoutAFolderValuesLastAsLongAsTheStore) {
  FileSettingsStore homeless{std::filesystem::path()};
  homeless.SetSettingsKey(L"Vexa Calculator");
  EXPECT_TRUE(homeless.WriteSettingInt(L"Config", L"Mode", 3));
  EXPECT_EQ(homeless.ReadSettingInt(L"Config", L"Mode", 1), 3);
  EXPECT_FALSE(homeless.Flush());
}

}  // namespace
}  // namespace vexa

// The file of rows that were kept aside: every text comes back, and no damage is taken for rows.

#include "stats/KeptRows.h"

#include <gtest/gtest.h>

#include "stats/Lists.h"

namespace vexa {
namespace {

std::string Written(const PackedRows& rows) {
  KeptRowsWriter writer;
  std::string bytes = KeptRowsWriter::Start(rows.Columns());
  for (std::size_t row = 0; row < rows.Count(); ++row) writer.AppendRow(rows, row, bytes);
  return bytes + writer.End();
}

std::optional<DataSet> Read(std::size_t columns, std::string_view bytes,
                            std::size_t pieceSize = 1000) {
  KeptRowsReader reader(columns);
  for (; !bytes.empty(); bytes.remove_prefix(std::min(pieceSize, bytes.size()))) {
    if (!reader.Feed(bytes.substr(0, pieceSize))) return std::nullopt;
  }
  return reader.Finish();
}

const test::Rows kRows{{"2.5", "-1e+005", "3"}, {"1.2.3", "", ""}, {"", "+-e", "-7"}};

TEST(KeptRows, EveryTextComesBack) {
  const std::string bytes = Written(test::DataOf(3, kRows).rows);
  for (const std::size_t pieceSize : {1, 2, 7, 1000}) {
    const auto data = Read(3, bytes, pieceSize);
    ASSERT_TRUE(data) << pieceSize;
    EXPECT_EQ(test::RowsOf(data->rows), kRows);
    EXPECT_EQ(data->total, -4);
    EXPECT_EQ(data->completeRows, 3U);
  }
}

TEST(KeptRows, NoRows) {
  const auto data = Read(2, Written(PackedRows(2)));
  ASSERT_TRUE(data);
  EXPECT_EQ(data->rows.Count(), 0U);
}

TEST(KeptRows, NoPartIsTakenForTheWhole) {
  const std::string bytes = Written(test::DataOf(3, kRows).rows);
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(Read(3, bytes.substr(0, size))) << size;
  }
  EXPECT_FALSE(Read(3, bytes + "1\t2\t3\r\n"));
}

TEST(KeptRows, AChangedByteIsSeen) {
  const std::string bytes = Written(test::DataOf(3, kRows).rows);
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    for (const char changed : {'0', '9', '\t', '\n', '\0', '\xff'}) {
      if (bytes[at] == changed) continue;
      std::string damaged = bytes;
      damaged[at] = changed;
      EXPECT_FALSE(Read(3, damaged)) << at << ' ' << int{changed};
    }
  }
}

TEST(KeptRows, OtherFilesAreRefused) {
  EXPECT_FALSE(Read(2, Written(test::DataOf(3, kRows).rows)));
  for (const char* bytes : {"", "1\t2\r\n", "\n\n\n", "end 0 0\r\n", "\0\0"}) {
    EXPECT_FALSE(Read(2, bytes)) << bytes;
  }
}

}  // namespace
}  // namespace vexa

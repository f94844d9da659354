#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vexa {

/// The texts of the edits, one for each column of the list, the count's last.
using EntryTexts = std::vector<std::wstring>;

/// The sentence that says what is wrong with an edit, and which one it is; empty: nothing is.
struct EntryFault {
  std::wstring sentence;
  std::size_t field = 0;
};

/// The numbers of the edits.
struct DataEntry {
  std::vector<double> values;
  std::int32_t count = 0;
};

/// Reads the first `valueCount` texts as numbers into entry.values.
EntryFault ReadValues(const EntryTexts& texts, std::size_t valueCount, DataEntry& entry);
/// Reads all texts: the last one is the count, any whole number of 32 bits.
EntryFault ReadEntry(const EntryTexts& texts, DataEntry& entry);

}  // namespace vexa

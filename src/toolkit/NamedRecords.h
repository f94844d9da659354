#pragma once

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

namespace vexa {

/// Records in the user's order, found by position or by name (`Record::name`; case counts).
template <typename Record>
class NamedRecords {
 public:
  int Count() const { return static_cast<int>(records.size()); }
  const Record& At(int index) const { return records[static_cast<std::size_t>(index)]; }
  /// Position of the first record with exactly this name.
  std::optional<int> Find(std::wstring_view name) const {
    const auto found = std::ranges::find(records, name, &Record::name);
    if (found == records.end()) return std::nullopt;
    return static_cast<int>(found - records.begin());
  }
  /// Whether a record at another position than `index` has exactly this name.
  bool HasOther(int index, std::wstring_view name) const {
    for (int i = 0; i < Count(); ++i) {
      if (i != index && At(i).name == name) return true;
    }
    return false;
  }

 protected:
  Record& Changed(int index) { return records[static_cast<std::size_t>(index)]; }

  std::vector<Record> records;
};

}  // namespace vexa

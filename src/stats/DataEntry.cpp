#include "stats/DataEntry.h"

#include <limits>

#include "toolkit/NumberBox.h"

namespace vexa {

EntryFault ReadValues(const EntryTexts& texts, std::size_t valueCount, DataEntry& entry) {
  entry.values.clear();
  for (std::size_t field = 0; field < valueCount; ++field) {
    const auto value = ReadNumberBox(texts[field]);
    if (!value) return {std::wstring(kEnterNumber), field};
    entry.values.push_back(*value);
  }
  return {};
}

EntryFault ReadEntry(const EntryTexts& texts, DataEntry& entry) {
  using Limits = std::numeric_limits<std::int32_t>;
  const std::size_t countField = texts.size() - 1;
  EntryFault fault = ReadValues(texts, countField, entry);
  if (!fault.sentence.empty()) return fault;
  return {ReadIntegerBox(texts[countField], Limits::min(), Limits::max(), entry.count), countField};
}

}  // namespace vexa

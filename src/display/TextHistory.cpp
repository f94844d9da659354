#include "display/TextHistory.h"

#include <utility>

namespace vexa {

void TextHistory::AddHistory(std::wstring_view text) {
  if (!entries.empty() && entries.back() == text) return;
  // Copied first: `text` may be an entry that moves.
  std::wstring entry(text);
  if (Count() == kind.capacity) entries.erase(entries.begin());
  entries.push_back(std::move(entry));
}

void TextHistory::Load(const SettingsStore& store) {
  const int count = settings::ClampCount(Read(store, kind.count), kind.capacity);
  entries.assign(static_cast<std::size_t>(count), {});
  for (int i = count; i >= 1; --i) {
    entries[static_cast<std::size_t>(i - 1)] = Read(store, kind.entry, i);
  }
}

void TextHistory::Save(SettingsStore& store) const {
  Write(store, kind.count, Count());
  for (int i = 1; i <= Count(); ++i) Write(store, kind.entry, i, At(i));
}

}  // namespace vexa

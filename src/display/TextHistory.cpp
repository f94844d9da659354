#include "display/TextHistory.h"

namespace vexa {

void TextHistory::Add(std::wstring_view text) {
  if (!entries.empty() && entries.back() == text) return;
  if (Count() == kind.capacity) entries.erase(entries.begin());
  entries.emplace_back(text);
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

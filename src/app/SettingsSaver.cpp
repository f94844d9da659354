#include "app/SettingsSaver.h"

#include <chrono>

#include "display/WideText.h"

namespace vexa {
namespace {

constexpr std::chrono::seconds kRetryPause{10};

}  // namespace

SettingsSaver::SettingsSaver(FileSettingsStore& settingsStore) : store(settingsStore) {
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, &SettingsSaver::Save);
  store.changed = [this] { timer.start(0); };
  // Opening the file may have had something to say.
  timer.start(0);
}

SettingsSaver::~SettingsSaver() {
  store.changed = [] {};
}

void SettingsSaver::Save() {
  const bool isSaved = store.Flush();
  for (const std::wstring& sentence : store.TakeNotices()) emit NoticeRaised(FromWide(sentence));
  if (!isSaved) timer.start(kRetryPause);
}

}  // namespace vexa

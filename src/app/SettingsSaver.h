#pragma once

#include <QObject>
#include <QTimer>

#include "display/FileSettingsStore.h"

namespace vexa {

/// Brings changed settings into their file as soon as the event loop gets control, and tries again
/// later where that fails.
class SettingsSaver : public QObject {
  Q_OBJECT

 public:
  /// `settingsStore` must outlive the saver, which takes its reports of changes.
  explicit SettingsSaver(FileSettingsStore& settingsStore);
  ~SettingsSaver() override;

 signals:
  /// What the user should read about the settings file; each sentence comes once.
  void NoticeRaised(const QString& sentence);

 private:
  void Save();

  FileSettingsStore& store;
  QTimer timer;
};

}  // namespace vexa

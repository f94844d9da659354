#pragma once

#include <QString>
#include <memory>

#include "display/MemorySettingsStore.h"
#include "display/SettingsStore.h"

class QSettings;

namespace vexa {

/// The store in a file of the user's own: <folder>/<key>/settings.ini.
///
/// Changes reach the file together, soon after the event loop gets control and when the store is
/// destroyed, through a temporary file that replaces the old one: whatever interrupts the program,
/// the file holds the old or the new content. A file that is damaged, above kLargestFile or
/// unreadable is renamed to a free name beside it and an empty store takes its place; where that
/// fails too, and where the folder cannot be written, values are kept for this run only.
class FileSettingsStore : public SettingsStore {
 public:
  /// No store of this program grows to this size in bytes.
  static constexpr qint64 kLargestFile = qint64{64} * 1024 * 1024;

  /// `folder` holds the key's folder; it is created when it is missing.
  explicit FileSettingsStore(QString folder = UserFolder());
  ~FileSettingsStore() override;

  void SetSettingsKey(std::wstring_view key) override;
  int ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                     int defaultValue) const override;
  std::wstring ReadSettingString(std::wstring_view section, std::wstring_view entry,
                                 std::wstring_view defaultValue) const override;
  bool WriteSettingInt(std::wstring_view section, std::wstring_view entry, int value) override;
  bool WriteSettingString(std::wstring_view section, std::wstring_view entry,
                          std::wstring_view text) override;

  /// Brings all changes into the file now. False: the file could not be written.
  bool Flush();
  /// The file of the key that was set.
  const QString& FileName() const { return fileName; }
  /// The folder for the settings of this user's programs.
  static QString UserFolder();

 private:
  void Open();

  QString folder;
  QString fileName;
  /// Null where no file may be touched: the session's values take its place.
  std::unique_ptr<QSettings> file;
  MemorySettingsStore session;
};

}  // namespace vexa

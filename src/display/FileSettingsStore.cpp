#include "display/FileSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileDevice>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>
#include <utility>

#include "display/IniText.h"
#include "display/WideText.h"

namespace vexa {
namespace {

constexpr int kLockPatienceMs = 1000;
/// Damaged files beside the store: with this many, somebody should look before there are more.
constexpr int kMostDamagedFiles = 1000;

QString ValueName(std::wstring_view section, std::wstring_view entry) {
  return FromWide(section) + u'/' + FromWide(entry);
}

bool ReadIniFile(QIODevice& device, QSettings::SettingsMap& map) {
  if (device.size() > FileSettingsStore::kLargestFile) return false;
  const QByteArray bytes = device.readAll();
  const std::optional<IniValues> values =
      ParseIni({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  if (!values) return false;
  for (const auto& [name, text] : *values) {
    map[ValueName(name.first, name.second)] = FromWide(text);
  }
  return true;
}

bool WriteIniFile(QIODevice& device, const QSettings::SettingsMap& map) {
  IniValues values;
  for (auto item = map.begin(); item != map.end(); ++item) {
    const qsizetype slash = item.key().indexOf(u'/');
    values[{item.key().left(qMax(slash, qsizetype{0})).toStdWString(),
            item.key().mid(slash + 1).toStdWString()}] = item.value().toString().toStdWString();
  }
  const std::string bytes = FormatIni(values);
  if (device.write(bytes.data(), static_cast<qint64>(bytes.size())) !=
      static_cast<qint64>(bytes.size())) {
    return false;
  }
  // A full disk shows only when the buffer is emptied; unseen, half a file would replace the old
  // one.
  auto* file = qobject_cast<QFileDevice*>(&device);
  return !file || file->flush();
}

/// INI with this program's own reader. The toolkit's one rebuilds any serialized object that a file
/// names, however deep; this one knows texts only, keeps every character and tells damage reliably.
QSettings::Format IniFormat() {
  static const QSettings::Format format =
      QSettings::registerFormat(QStringLiteral("ini"), ReadIniFile, WriteIniFile);
  return format;
}

/// Renames what stands at `fileName` to a free name beside it.
bool MoveAside(const QString& fileName) {
  namespace fs = std::filesystem;
  const QFileInfo info(fileName);
  for (int n = 1; n <= kMostDamagedFiles; ++n) {
    const QString name = QStringLiteral("%1/%2.damaged-%3.%4")
                             .arg(info.path(), info.completeBaseName())
                             .arg(n)
                             .arg(info.suffix());
    std::error_code error;
    const fs::path target(QFile::encodeName(name).toStdString());
    const fs::file_status status = fs::symlink_status(target, error);
    if (status.type() == fs::file_type::none) return false;
    if (status.type() != fs::file_type::not_found) continue;
    fs::rename(QFile::encodeName(fileName).toStdString(), target, error);
    return !error;
  }
  return false;
}

/// True when the lock that guards each write of `fileName` can be had: one that a crashed run or a
/// stranger left there would stall every write.
bool LockIsFree(const QString& fileName) {
  const QString lockName = fileName + QStringLiteral(".lock");
  if (!QFileInfo::exists(lockName)) return true;
  QLockFile lock(lockName);
  if (lock.tryLock(kLockPatienceMs)) return true;
  return lock.error() == QLockFile::PermissionError || QFile::remove(lockName);
}

bool IsReadableFile(const QString& fileName) {
  const QFileInfo info(fileName);
  return info.isFile() && info.isReadable();
}

}  // namespace

FileSettingsStore::FileSettingsStore(QString settingsFolder) : folder(std::move(settingsFolder)) {}

FileSettingsStore::~FileSettingsStore() = default;

QString FileSettingsStore::UserFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

void FileSettingsStore::SetSettingsKey(std::wstring_view key) {
  fileName = QStringLiteral("%1/%2/settings.ini").arg(folder, FromWide(key));
  Open();
}

void FileSettingsStore::Open() {
  file.reset();
  QDir().mkpath(QFileInfo(fileName).path());
  if (!LockIsFree(fileName)) return;
  if (!QFileInfo::exists(fileName) || IsReadableFile(fileName)) {
    file = std::make_unique<QSettings>(fileName, IniFormat());
    if (file->status() == QSettings::NoError) return;
    file.reset();
  }
  if (MoveAside(fileName)) file = std::make_unique<QSettings>(fileName, IniFormat());
}

int FileSettingsStore::ReadSettingInt(std::wstring_view section, std::wstring_view entry,
                                      int defaultValue) const {
  if (!file) return session.ReadSettingInt(section, entry, defaultValue);
  const QVariant value = file->value(ValueName(section, entry));
  return ParseIniInteger(value.toString().toStdWString()).value_or(defaultValue);
}

std::wstring FileSettingsStore::ReadSettingString(std::wstring_view section,
                                                  std::wstring_view entry,
                                                  std::wstring_view defaultValue) const {
  if (!file) return session.ReadSettingString(section, entry, defaultValue);
  const QVariant value = file->value(ValueName(section, entry));
  return value.isValid() ? value.toString().toStdWString() : std::wstring(defaultValue);
}

bool FileSettingsStore::WriteSettingInt(std::wstring_view section, std::wstring_view entry,
                                        int value) {
  if (!file) return session.WriteSettingInt(section, entry, value);
  return WriteSettingString(section, entry, std::to_wstring(value));
}

bool FileSettingsStore::WriteSettingString(std::wstring_view section, std::wstring_view entry,
                                           std::wstring_view text) {
  if (!file) return session.WriteSettingString(section, entry, text);
  file->setValue(ValueName(section, entry), FromWide(text));
  return true;
}

bool FileSettingsStore::Flush() {
  if (!file) return false;
  file->sync();
  return file->status() == QSettings::NoError;
}

}  // namespace vexa

#pragma once

#include <QObject>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>

#include "files/FileLock.h"
#include "toolkit/Modes.h"

class QSocketNotifier;

namespace vexa {

/// Makes sure that a user runs one copy of the program.
///
/// A lock beside the settings file ends with the process that holds it, however it ends, so nothing
/// is left to block the next start. A second copy asks the first one through a socket there to come
/// to the front, and ends when the first has answered.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  /// What a start is.
  enum class Role {
    Only,    ///< The first copy, or there is no place for the lock.
    Beside,  ///< Another copy runs and does not answer: it is stopped, or hangs.
    Second,  ///< Another copy runs and has come to the front.
  };

  /// `startPatience`: how long a copy may take to start or to end, while it answers nobody.
  explicit SingleInstance(std::chrono::milliseconds startPatience = std::chrono::seconds(10));
  ~SingleInstance() override;

  /// Finds out what this start is; a copy that runs is asked to show `mode` where there is one.
  /// Needs no application object.
  Role Claim(std::optional<Mode> mode = {});
  /// From now on other copies' wishes are reported and answered. Needs the application object.
  void Listen();
  /// From now on another copy waits until this one has ended, and takes its place.
  void StopListening();

 signals:
  /// Another copy was started, with this token of the desktop's permission to take the focus, and
  /// the word of the mode that it was asked for, which may be empty or unknown. It has its answer
  /// when this returns.
  void FrontRequested(const QByteArray& activationToken, const QByteArray& modeWord);

 private:
  void Answer();

  std::chrono::milliseconds patience;
  /// Empty where there is no place for the lock.
  std::filesystem::path folder;
  FileLock lock;
  Descriptor listener;
  std::unique_ptr<QSocketNotifier> notifier;
};

}  // namespace vexa

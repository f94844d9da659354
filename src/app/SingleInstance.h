#pragma once

#include <QObject>
#include <memory>
#include <string>

class QSocketNotifier;

namespace vexa {

/// Makes sure that a user runs one copy of the program.
///
/// A named pipe in a folder that only this user may enter carries a lock that ends with the process
/// that holds it, however it ends, so nothing is left to block the next start. A second copy writes
/// one line into the pipe and ends; the first reads it and comes to the front.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  SingleInstance();
  ~SingleInstance() override;

  /// True: this is the first copy, or there is no place for the pipe. False: another copy runs and
  /// has been asked to come to the front. Needs no application object.
  bool Claim();
  /// From now on other copies' wishes are reported. Needs the application object.
  void Listen();

 signals:
  /// Another copy was started, with this token of the desktop's permission to take the focus.
  void FrontRequested(const QByteArray& activationToken);

 private:
  void ReadRequests();

  int pipe = -1;
  std::unique_ptr<QSocketNotifier> notifier;
  std::string received;
};

}  // namespace vexa

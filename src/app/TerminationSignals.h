#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;

namespace vexa {

/// Reports that the program is asked to end: by SIGTERM, SIGINT or SIGHUP, or by the end of the
/// desktop session. One object at a time, while there is an application object.
class TerminationSignals : public QObject {
  Q_OBJECT

 public:
  TerminationSignals();
  ~TerminationSignals() override;

 signals:
  void TerminationRequested();

 private:
  void ReadSignals();

  std::unique_ptr<QSocketNotifier> notifier;
};

}  // namespace vexa

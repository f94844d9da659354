#pragma once

#include <QElapsedTimer>
#include <QString>
#include <memory>

class QDialog;
class QProgressBar;
class QWidget;

namespace vexa {

/// Shows how far a long operation is, and lets the user cancel it. It opens only when the operation
/// takes noticeably long; from then on it keeps the window alive. The window below takes no input.
class ProgressBox {
 public:
  /// How long an operation may take before the box opens, in milliseconds. Tests change it.
  static int patienceMs;

  /// `owner` is the screen that waits; `title` says for what.
  ProgressBox(QWidget* owner, const QString& title);
  ~ProgressBox();

  /// Shows the share that is done, 0 to 1. False: the operation has to stop, because the user has
  /// cancelled it or the window is closed.
  bool Report(double share);

 private:
  void Open();

  QWidget* owner;
  QString title;
  QElapsedTimer sinceStart;
  QElapsedTimer sinceShown;
  std::unique_ptr<QDialog> dialog;
  QProgressBar* bar = nullptr;
  bool cancelled = false;
};

/// Runs `operation`, which takes a watcher, while a ProgressBox shows how far it is, and returns
/// its outcome. The box is gone by then.
template <typename Operation>
auto RunWithProgress(QWidget* owner, const QString& title, Operation operation) {
  ProgressBox progress(owner, title);
  return operation([&](double share) { return progress.Report(share); });
}

}  // namespace vexa

#pragma once

#include <QEventLoop>
#include <QString>
#include <atomic>
#include <exception>
#include <functional>
#include <memory>
#include <optional>

class QDialog;
class QProgressBar;
class QThread;
class QWidget;

namespace vexa {

/// Runs a long operation beside the window, which stays alive: it is painted, and a box that opens
/// when the operation takes noticeably long shows how far it is and lets the user cancel it. The
/// window takes no input until the operation has ended.
class ProgressBox {
 public:
  /// How long an operation may take before the box opens, in milliseconds. Tests change it: with 0
  /// the box is open, and may be cancelled, before the operation starts.
  static int patienceMs;

  /// `owner` is the screen that waits; `title` says for what.
  ProgressBox(QWidget* owner, const QString& title);
  ~ProgressBox();

  /// Runs `work` in a thread of its own and returns when it has ended. What it changes must not be
  /// shown.
  void Run(const std::function<void()>& work);
  /// For the work: takes the share that is done, 0 to 1. False: the work has to stop, because the
  /// user has cancelled it or the window is closed.
  bool Report(double share);

 private:
  void Open();
  /// Lets these events happen until the worker has finished, or for `atMostMs` milliseconds.
  void Await(const QThread& worker, QEventLoop::ProcessEventsFlags events,
             std::optional<int> atMostMs);
  /// Shows how far the work is, and sees whether it is still wanted.
  void Look();

  QWidget* owner;
  QString title;
  std::unique_ptr<QDialog> dialog;
  QProgressBar* bar = nullptr;
  std::atomic<double> done = 0.0;
  std::atomic<bool> stopped = false;
};

/// Runs `operation`, which takes a watcher, while a ProgressBox shows how far it is, and returns
/// its outcome, or throws what it threw. The box is gone by then.
template <typename Operation>
auto RunWithProgress(QWidget* owner, const QString& title, Operation operation) {
  ProgressBox progress(owner, title);
  const auto watcher = [&](double share) { return progress.Report(share); };
  std::optional<decltype(operation(watcher))> outcome;
  std::exception_ptr failure;
  progress.Run([&] {
    try {
      outcome.emplace(operation(watcher));
    } catch (...) {
      failure = std::current_exception();
    }
  });
  if (failure) std::rethrow_exception(failure);
  return std::move(*outcome);
}

}  // namespace vexa

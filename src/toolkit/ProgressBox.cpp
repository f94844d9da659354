#include "toolkit/ProgressBox.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

/// Work that ends this soon is waited for: nobody would see anything happen meanwhile.
constexpr int kUnseenMs = 50;
constexpr int kFrameMs = 16;
constexpr int kSteps = 1000;
constexpr int kWidth = 220;

}  // namespace

int ProgressBox::patienceMs = 200;

ProgressBox::ProgressBox(QWidget* waitingOwner, const QString& boxTitle)
    : owner(waitingOwner), title(boxTitle) {}

ProgressBox::~ProgressBox() = default;

void ProgressBox::Run(const std::function<void()>& work) {
  if (patienceMs == 0) {
    Open();
    QCoreApplication::processEvents();
    Look();
  }
  const std::unique_ptr<QThread> worker(QThread::create(work));
  worker->start();
  // Where there is no room for a thread, the window has to wait.
  if (!worker->isRunning() && !worker->isFinished()) return work();
  if (worker->wait(static_cast<unsigned long>(std::min(patienceMs, kUnseenMs)))) return;
  // What is typed before the box opens is for the window, afterwards.
  if (!dialog) Await(*worker, QEventLoop::ExcludeUserInputEvents, patienceMs - kUnseenMs);
  if (!worker->isFinished()) {
    if (!dialog) Open();
    Await(*worker, QEventLoop::AllEvents, std::nullopt);
  }
  // The program may be ending, which ends every wait for events at once.
  stopped = true;
  worker->wait();
}

void ProgressBox::Await(const QThread& worker, QEventLoop::ProcessEventsFlags events,
                        std::optional<int> atMostMs) {
  QEventLoop loop;
  QObject::connect(&worker, &QThread::finished, &loop, &QEventLoop::quit);
  QTimer frame;
  QObject::connect(&frame, &QTimer::timeout, &loop, [&] {
    Look();
    if (worker.isFinished()) loop.quit();
  });
  frame.start(kFrameMs);
  if (atMostMs) QTimer::singleShot(std::max(0, *atMostMs), &loop, &QEventLoop::quit);
  loop.exec(events);
}

bool ProgressBox::Report(double share) {
  done = share;
  return !stopped;
}

void ProgressBox::Look() {
  if (bar) bar->setValue(qRound(done * kSteps));
  if (!owner->isVisible()) stopped = true;
}

void ProgressBox::Open() {
  dialog = std::make_unique<QDialog>(owner);
  dialog->setObjectName(QStringLiteral("Progress"));
  dialog->setWindowTitle(FromWide(settings::kSettingsKey));
  dialog->setWindowModality(Qt::ApplicationModal);
  auto* const label = new QLabel(title, dialog.get());
  bar = new QProgressBar(dialog.get());
  bar->setRange(0, kSteps);
  bar->setAccessibleName(title);
  auto* const button = new QPushButton(QStringLiteral("Cancel"), dialog.get());
  button->setObjectName(QStringLiteral("Cancel"));
  button->setMinimumHeight(kTouchHeight);
  auto* const layout = new QVBoxLayout(dialog.get());
  for (QWidget* const part :
       {static_cast<QWidget*>(label), static_cast<QWidget*>(bar), static_cast<QWidget*>(button)}) {
    layout->addWidget(part);
  }
  QObject::connect(button, &QPushButton::clicked, dialog.get(), &QDialog::reject);
  QObject::connect(dialog.get(), &QDialog::rejected, dialog.get(), [this] { stopped = true; });
  dialog->resize(kWidth, 0);
  dialog->show();
}

}  // namespace vexa

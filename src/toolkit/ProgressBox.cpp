#include "toolkit/ProgressBox.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

/// A frame: more often nobody would see it.
constexpr int kFrameMs = 16;
constexpr int kSteps = 1000;
constexpr int kWidth = 220;

}  // namespace

int ProgressBox::patienceMs = 200;

ProgressBox::ProgressBox(QWidget* waitingOwner, const QString& boxTitle)
    : owner(waitingOwner), title(boxTitle) {
  sinceStart.start();
}

ProgressBox::~ProgressBox() = default;

bool ProgressBox::Report(double share) {
  if (!dialog) {
    if (sinceStart.elapsed() < patienceMs) return true;
    Open();
  } else if (sinceShown.elapsed() < kFrameMs) {
    return true;
  }
  bar->setValue(qRound(share * kSteps));
  QCoreApplication::processEvents();
  sinceShown.start();
  return !cancelled && owner->isVisible();
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
  QObject::connect(dialog.get(), &QDialog::rejected, dialog.get(), [this] { cancelled = true; });
  dialog->resize(kWidth, 0);
  dialog->show();
}

}  // namespace vexa

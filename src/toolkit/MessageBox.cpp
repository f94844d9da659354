#include "toolkit/MessageBox.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "display/SettingsLayout.h"
#include "display/WideText.h"

namespace vexa {
namespace {

QMessageBox* NewBox(QWidget* parent, QMessageBox::Icon icon, const std::wstring& text,
                    QMessageBox::StandardButtons buttons) {
  auto* const box =
      new QMessageBox(icon, FromWide(settings::kSettingsKey), FromWide(text), buttons, parent);
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  return box;
}

}  // namespace

void ShowErrorBox(QWidget* parent, const std::wstring& sentence, std::function<void()> closed,
                  const std::wstring& details) {
  QMessageBox* const box = NewBox(parent, QMessageBox::Critical, sentence, QMessageBox::Ok);
  if (!details.empty()) {
    box->setInformativeText(FromWide(details));
    // A file's name may look like markup.
    box->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))
        ->setTextFormat(Qt::PlainText);
  }
  QObject::connect(box, &QMessageBox::finished, parent, std::move(closed));
  box->open();
}

void AskYesNo(QWidget* parent, const std::wstring& question, std::function<void()> yes) {
  QMessageBox* const box =
      NewBox(parent, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No);
  box->setDefaultButton(QMessageBox::No);
  QObject::connect(box, &QMessageBox::finished, parent, [yes = std::move(yes)](int answer) {
    if (answer == QMessageBox::Yes) yes();
  });
  box->open();
}

void AskToDiscard(QWidget* parent, std::function<void()> discard) {
  AskYesNo(parent, std::wstring(kDiscardQuestion), std::move(discard));
}

void AskEitherWay(QWidget* parent, const std::wstring& question,
                  std::function<void(bool yes)> answered) {
  QMessageBox* const box =
      NewBox(parent, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No);
  box->setDefaultButton(QMessageBox::Yes);
  // Without a button of its own, Escape would press "No".
  QPushButton* const noAnswer = box->addButton(QMessageBox::Cancel);
  noAnswer->hide();
  box->setEscapeButton(noAnswer);
  QObject::connect(box, &QMessageBox::finished, parent,
                   [answered = std::move(answered)](int answer) {
                     const bool yes = answer == QMessageBox::Yes;
                     if (yes || answer == QMessageBox::No) answered(yes);
                   });
  box->open();
}

}  // namespace vexa

#include "toolkit/AboutBox.h"

#include <QMessageBox>

namespace vexa {

void ShowAboutBox(QWidget* parent) {
  auto* box = new QMessageBox(parent);
  box->setObjectName(QStringLiteral("About"));
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle(QStringLiteral("About Vexa Calculator"));
  box->setTextFormat(Qt::PlainText);
  box->setText(QStringLiteral("Vexa Calculator\nVer 2.0"));
  box->setInformativeText(
      QStringLiteral("Copyright The Vexa Calculator authors.\n"
                     "Free software under the MIT license: use, change and share it freely, "
                     "without any warranty."));
  box->open();
}

}  // namespace vexa

#include "toolkit/AboutBox.h"

#include <QMessageBox>

#include "Version.h"

namespace vexa {
namespace {

/// The version as it is shown: without its last number, which only counts corrections.
QString ShownVersion() {
  const QString version = QString::fromLatin1(kVersion);
  return version.left(version.lastIndexOf(QLatin1Char('.')));
}

}  // namespace

void ShowAboutBox(QWidget* parent) {
  auto* box = new QMessageBox(parent);
  box->setObjectName(QStringLiteral("About"));
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle(QStringLiteral("About Vexa Calculator"));
  box->setTextFormat(Qt::PlainText);
  box->setText(QStringLiteral("Vexa Calculator\nVer ") + ShownVersion());
  box->setInformativeText(
      QStringLiteral("Copyright The Vexa Calculator authors.\n"
                     "Free software under the MIT license: use, change and share it freely, "
                     "without any warranty."));
  box->open();
}

}  // namespace vexa

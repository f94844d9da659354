#include "toolkit/ComingScreen.h"

#include <QLabel>
#include <QVBoxLayout>

#include "display/WideText.h"

namespace vexa {

ComingScreen::ComingScreen(Mode mode, QWidget* parent) : ModeScreen(mode, parent) {
  const QString name = FromWide(kModes[IndexOf(mode)].name);
  auto* const notice = new QLabel(QStringLiteral("%1 is not there yet.").arg(name), this);
  notice->setObjectName(QStringLiteral("Notice"));
  notice->setAlignment(Qt::AlignCenter);
  notice->setWordWrap(true);
  Content()->addWidget(notice);
}

}  // namespace vexa

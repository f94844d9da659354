#include "toolkit/NoticeBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "toolkit/Theme.h"

namespace vexa {
namespace {

constexpr int kInset = 6;
constexpr int kButtonSize = 32;

}  // namespace

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), text(new QLabel(this)) {
  setObjectName(QStringLiteral("Notice"));
  setAccessibleName(QStringLiteral("Notice"));
  setAutoFillBackground(true);
  setFrameShape(QFrame::StyledPanel);
  text->setObjectName(QStringLiteral("Notice text"));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  theme::ShowAsNotice(text);
  auto* const button = new QPushButton(QStringLiteral("\u00D7"), this);
  button->setObjectName(QStringLiteral("Dismiss"));
  button->setAccessibleName(QStringLiteral("Dismiss"));
  button->setToolTip(QStringLiteral("Dismiss"));
  button->setFixedSize(kButtonSize, kButtonSize);
  // A click on it leaves the focus where the user types.
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QPushButton::clicked, this, &NoticeBar::Dismiss);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(kInset, 0, 0, 0);
  row->addWidget(text, 1);
  row->addWidget(button, 0, Qt::AlignTop);
  hide();
}

void NoticeBar::Add(const QString& sentence) {
  text->setText(text->text().isEmpty() ? sentence : text->text() + u'\n' + sentence);
  setAccessibleDescription(text->text());
  show();
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
  emit HeightChanged();
}

void NoticeBar::Dismiss() {
  text->clear();
  hide();
  emit HeightChanged();
}

}  // namespace vexa

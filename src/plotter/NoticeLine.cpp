#include "plotter/NoticeLine.h"

#include <QFontInfo>

#include "toolkit/Theme.h"

namespace vexa {
namespace {

constexpr int kSmallestText = 8;

}  // namespace

NoticeLine::NoticeLine(QWidget* parent) : QLabel(parent), pixels(QFontInfo(font()).pixelSize()) {
  setObjectName(QStringLiteral("Notice"));
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  theme::ShowAsNotice(this);
  hide();
}

void NoticeLine::ShowText(const QString& text) {
  setText(text);
  FitText();
  setHidden(text.isEmpty());
}

QSize NoticeLine::sizeHint() const {
  return {0, fontMetrics().height()};
}

void NoticeLine::FitText() {
  QFont fitted = font();
  for (int size = pixels; size >= kSmallestText; --size) {
    fitted.setPixelSize(size);
    if (QFontMetrics(fitted).horizontalAdvance(text()) <= width()) break;
  }
  if (fitted.pixelSize() != font().pixelSize()) setFont(fitted);
}

void NoticeLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  FitText();
}

}  // namespace vexa

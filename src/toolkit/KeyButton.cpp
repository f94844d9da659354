#include "toolkit/KeyButton.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "display/WideText.h"
#include "toolkit/Theme.h"

namespace vexa {
namespace {

/// The keypad's cell on the smallest layout, and where it is comfortable, in logical pixels.
constexpr QSize kSmallestKey(32, 20);
constexpr QSize kComfortableKey(48, 42);

constexpr qreal kCornerRadius = 5;
constexpr qreal kBorderWidth = 1;
constexpr qreal kFocusWidth = 2;

/// The face's text against the key: its height, and the width that it may take.
constexpr qreal kTextShareOfHeight = 0.42;
constexpr qreal kTextShareOfWidth = 0.86;
constexpr qreal kSmallestText = 8;
constexpr qreal kLargestText = 26;

bool IsNumberEntry(KeyRole role) {
  return role == KeyRole::Digit || role == KeyRole::Operator || role == KeyRole::Equals;
}

}  // namespace

KeyButton::KeyButton(const Key& shownKey, QWidget* parent) : QPushButton(parent), key(shownKey) {
  const QString caption = FromWide(key.caption);
  setText(caption);
  setObjectName(caption);
  setAccessibleName(caption);
  setAutoRepeat(key.autoRepeat);
  setAutoDefault(false);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize KeyButton::sizeHint() const {
  return kComfortableKey;
}

QSize KeyButton::minimumSizeHint() const {
  return kSmallestKey;
}

QFont KeyButton::FaceFont() const {
  QFont face = font();
  // Names of functions are words: they look as large as digits at a smaller size.
  const qreal roleShare = IsNumberEntry(key.role) && key.caption.size() <= 2 ? 1.15 : 0.9;
  const qreal wanted =
      std::clamp(height() * kTextShareOfHeight * roleShare, kSmallestText, kLargestText);
  face.setPixelSize(qRound(wanted));
  const qreal width = QFontMetricsF(face).horizontalAdvance(text());
  const qreal room = this->width() * kTextShareOfWidth;
  if (width > room) {
    face.setPixelSize(std::max(qRound(kSmallestText), static_cast<int>(wanted * room / width)));
  }
  return face;
}

void KeyButton::paintEvent(QPaintEvent*) {
  const theme::KeyColours& colours = theme::ColoursOf(key.role, palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);

  const qreal inset = kBorderWidth / 2;
  const QRectF face = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
  painter.setPen(QPen(colours.border, kBorderWidth));
  painter.setBrush(isDown() ? colours.pressedFace : colours.face);
  painter.drawRoundedRect(face, kCornerRadius, kCornerRadius);

  painter.setFont(FaceFont());
  painter.setPen(isEnabled() ? colours.text : colours.disabledText);
  painter.drawText(face, Qt::AlignCenter | Qt::TextSingleLine, text());

  if (hasFocus()) {
    const QRectF ring = face.adjusted(kFocusWidth, kFocusWidth, -kFocusWidth, -kFocusWidth);
    painter.setPen(QPen(theme::FocusColour(palette()), kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, kCornerRadius - kFocusWidth, kCornerRadius - kFocusWidth);
  }
}

}  // namespace vexa

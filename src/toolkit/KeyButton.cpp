#include "toolkit/KeyButton.h"

#include <QPainter>
#include <algorithm>

#include "display/WideText.h"
#include "engine/AsciiCase.h"
#include "toolkit/FaceText.h"
#include "toolkit/Theme.h"

namespace vexa {
namespace {

/// The keypad's cell on the smallest layout, and where it is comfortable, in logical pixels.
constexpr QSize kSmallestKey(32, 20);
constexpr QSize kComfortableKey(48, 42);

constexpr qreal kCornerRadius = 5;
constexpr qreal kBorderWidth = 1;
constexpr qreal kFocusWidth = 2;

/// The face's text against the key. Signs and digits stand alone; names of functions share one
/// size, in which the longest of them has room.
constexpr qreal kSignShareOfHeight = 0.48;
constexpr qreal kNameShareOfHeight = 0.36;
constexpr qreal kNameShareOfWidth = 0.3;
constexpr qreal kRoomShareOfWidth = 0.9;
constexpr qreal kSmallestText = 8;
constexpr qreal kLargestText = 26;
constexpr std::size_t kLongestSign = 2;

/// "OR" is a word, "<<" and "00" are signs.
bool IsWord(std::wstring_view caption) {
  const wchar_t first = ToLowerAscii(caption.front());
  return caption.size() > 1 && first >= L'a' && first <= L'z';
}

bool IsSign(const Key& key) {
  return key.caption.size() <= kLongestSign && !IsWord(key.caption) &&
         (key.role == KeyRole::Digit || key.role == KeyRole::Operator ||
          key.role == KeyRole::Equals);
}

QString FaceText(const Key& key) {
  return FromWide(key.face.empty() ? key.caption : key.face);
}

}  // namespace

KeyButton::KeyButton(const Key& shownKey, QWidget* parent) : QPushButton(parent), key(shownKey) {
  const QString caption = FromWide(key.caption);
  setText(caption);
  setObjectName(caption);
  setAccessibleName(caption);
  setToolTip(FromWide(key.help));
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
  const qreal size = IsSign(key)
                         ? height() * kSignShareOfHeight
                         : std::min(height() * kNameShareOfHeight, width() * kNameShareOfWidth);
  const qreal clamped = std::clamp(size, kSmallestText, kLargestText);
  QFont face = font();
  face.setPixelSize(qRound(clamped));
  // Blue on orange, which is given, needs heavier strokes to be read at a glance.
  face.setBold(key.role == KeyRole::Memory);
  const qreal textWidth = face_text::Width(FaceText(key), face);
  const qreal room = width() * kRoomShareOfWidth;
  if (textWidth > room) {
    face.setPixelSize(qRound(std::max(kSmallestText, clamped * room / textWidth)));
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
  face_text::Draw(painter, face, FaceText(key));

  if (hasFocus()) {
    const QRectF ring = face.adjusted(kFocusWidth, kFocusWidth, -kFocusWidth, -kFocusWidth);
    painter.setPen(QPen(colours.text, kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ring, kCornerRadius - kFocusWidth, kCornerRadius - kFocusWidth);
  }
}

}  // namespace vexa

#include "toolkit/FaceText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <vector>

namespace vexa::face_text {
namespace {

/// A raised part's size, and how far above the line it stands, as shares of the font's size.
constexpr qreal kRaisedSize = 0.68;
constexpr qreal kRaisedBy = 0.42;

struct Part {
  QString text;
  bool raised;
};

std::vector<Part> PartsOf(const QString& face) {
  std::vector<Part> parts;
  Part part{{}, false};
  for (const QChar c : face) {
    if (c != u'{' && c != u'}') {
      part.text += c;
      continue;
    }
    if (!part.text.isEmpty()) parts.push_back(part);
    part = {{}, c == u'{'};
  }
  if (!part.text.isEmpty()) parts.push_back(part);
  return parts;
}

QFont PartFont(const Part& part, const QFont& font) {
  QFont sized(font);
  if (part.raised) sized.setPixelSize(qRound(font.pixelSize() * kRaisedSize));
  return sized;
}

}  // namespace

qreal Width(const QString& face, const QFont& font) {
  qreal width = 0;
  for (const Part& part : PartsOf(face)) {
    width += QFontMetricsF(PartFont(part, font)).horizontalAdvance(part.text);
  }
  return width;
}

void Draw(QPainter& painter, const QRectF& place, const QString& face) {
  const QFont font = painter.font();
  const QFontMetricsF metrics(font);
  const qreal line = place.center().y() + (metrics.ascent() - metrics.descent()) / 2;
  qreal left = place.center().x() - Width(face, font) / 2;
  for (const Part& part : PartsOf(face)) {
    const QFont partFont = PartFont(part, font);
    painter.setFont(partFont);
    painter.drawText(QPointF(left, part.raised ? line - font.pixelSize() * kRaisedBy : line),
                     part.text);
    left += QFontMetricsF(partFont).horizontalAdvance(part.text);
  }
}

}  // namespace vexa::face_text

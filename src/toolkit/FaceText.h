#pragma once

#include <QString>

class QFont;
class QPainter;
class QRectF;

/// Texts on keys in which what stands in braces is raised: x{2}.
namespace vexa::face_text {

/// The width of `face` in `font`.
qreal Width(const QString& face, const QFont& font);
/// Draws `face` in the middle of `place` with the painter's font and pen.
void Draw(QPainter& painter, const QRectF& place, const QString& face);

}  // namespace vexa::face_text

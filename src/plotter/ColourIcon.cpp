#include "plotter/ColourIcon.h"

#include <QPixmap>

#include "plotter/GraphColours.h"

namespace vexa {

QIcon CurveIcon(std::size_t position) {
  constexpr int kSide = 32;
  const Colour& colour = kCurveColours[position];
  QPixmap spot(kSide, kSide);
  spot.fill(QColor(colour.red, colour.green, colour.blue));
  return QIcon(spot);
}

}  // namespace vexa

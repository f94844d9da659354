#pragma once

#include <QProxyStyle>

namespace vexa {

/// The desktop's own style with room for a finger: entries of menu bars, menus and lists, buttons
/// and fields are at least kTouchHeight high. For an application that exists already: before, the
/// desktop's style is not known.
class TouchStyle : public QProxyStyle {
  Q_OBJECT

 public:
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contentsSize,
                         const QWidget* widget) const override;
  /// Radio buttons and check boxes are hit anywhere on their row.
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace vexa

#include "toolkit/TouchStyle.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <algorithm>

#include "toolkit/Theme.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr QStyle::ContentsType kTouched[] = {
    QStyle::CT_MenuBarItem, QStyle::CT_MenuItem, QStyle::CT_PushButton, QStyle::CT_RadioButton,
    QStyle::CT_CheckBox,    QStyle::CT_ComboBox, QStyle::CT_LineEdit,   QStyle::CT_ItemViewItem,
};

/// A line between the entries of a menu is nothing to hit.
bool IsSeparator(const QStyleOption* option) {
  const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  return item && item->menuItemType == QStyleOptionMenuItem::Separator;
}

/// A frame of one pixel each, filled: a line that is drawn falls below what the frame holds where
/// pixels of the display are no whole number of the program's.
void DrawFrame(const QStyleOption& option, QPainter& painter) {
  constexpr qreal kWidth = 1;
  const QRectF box(option.rect);
  const QColor colour = theme::FrameColour(option.palette);
  painter.fillRect(QRectF(box.left(), box.top(), box.width(), kWidth), colour);
  painter.fillRect(QRectF(box.left(), box.bottom() - kWidth, box.width(), kWidth), colour);
  painter.fillRect(QRectF(box.left(), box.top(), kWidth, box.height()), colour);
  painter.fillRect(QRectF(box.right() - kWidth, box.top(), kWidth, box.height()), colour);
}

}  // namespace

QSize TouchStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contentsSize, const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
  if (std::ranges::find(kTouched, type) == std::end(kTouched) || IsSeparator(option)) return size;
  return size.expandedTo(QSize(0, kTouchHeight));
}

QRect TouchStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const {
  if (element == SE_RadioButtonClickRect || element == SE_CheckBoxClickRect) return option->rect;
  return QProxyStyle::subElementRect(element, option, widget);
}

void TouchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget)) {
    return DrawFrame(*option, *painter);
  }
  const bool isIndicator = element == PE_IndicatorRadioButton || element == PE_IndicatorCheckBox;
  const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (!isIndicator || !button) {
    return QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  QStyleOptionButton visible(*button);
  visible.palette = theme::IndicatorPalette(button->palette);
  QProxyStyle::drawPrimitive(element, &visible, painter, widget);
}

}  // namespace vexa

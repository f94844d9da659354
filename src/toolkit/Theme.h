#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "toolkit/Key.h"

class QLabel;
class QWidget;

namespace vexa::theme {

/// The colours of a key.
struct KeyColours {
  QColor face;
  QColor pressedFace;
  QColor text;
  QColor disabledText;
  QColor border;
};

/// True when the desktop's colours are dark.
bool IsDark(const QPalette& palette);
/// The colours of keys with `role` beside a window with `palette`'s colours. Text on either face
/// has a contrast of at least 4.5 to 1.
const KeyColours& ColoursOf(KeyRole role, const QPalette& palette);

/// Draws `label` as a band in the light blue that dialogs have behind their texts, in light and
/// dark alike.
void ShowOnLightBlue(QLabel* label);

/// Makes what `widget` shows while it is disabled as readable as text: for fields that show
/// something before it can be changed. What is selected looks the same.
void KeepReadable(QWidget* widget);

/// Draws a field's text black on the amber of results, in light and dark alike; `dimmed`: as one
/// that is left from before, which can still be read.
void ShowOnAmber(QWidget* field, bool dimmed = false);
/// Draws `label` as a quiet notice of something that is not right yet.
void ShowAsNotice(QWidget* label);

/// The colours in which a radio button or check box beside `palette`'s window has an edge that can
/// be seen: on a dark window the circle or square is lighter.
QPalette IndicatorPalette(const QPalette& palette);

/// The colour of the frame around a field beside `palette`'s window.
QColor FrameColour(const QPalette& palette);

/// `base`, the desktop's own font, in "Tahoma" where that exists.
QFont ProgramFont(const QFont& base);

}  // namespace vexa::theme

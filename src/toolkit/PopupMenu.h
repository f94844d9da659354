#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/PopupCommand.h"

class QMenu;
class QWidget;

namespace vexa {

/// To which side of its anchor a pop-up menu opens.
enum class PopupSide { Left, Right };

/// Opens a menu of `commands`, from top to bottom and headed by `title` where there is one, whose
/// upper corner is at `anchor` of `owner`, and returns at once; the menu deletes itself. `chosen`
/// gets the chosen command, nothing when the menu is dismissed.
QMenu* ShowPopupMenu(QWidget* owner, QPoint anchor, PopupSide side,
                     const std::vector<PopupCommand>& commands, std::function<void(int)> chosen,
                     const std::wstring& title = {});

/// `text` as a menu shows it literally: "&" marks no shortcut, tabs and line breaks are blanks.
QString MenuText(const std::wstring& text);

}  // namespace vexa

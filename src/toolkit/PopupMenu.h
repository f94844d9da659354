#pragma once

#include <QPoint>
#include <QString>
#include <functional>
#include <string>
#include <vector>

class QMenu;
class QWidget;

namespace vexa {

/// A command of a pop-up menu and its text.
struct PopupCommand {
  int command;
  std::wstring caption;
};

/// Opens a menu of `commands`, from top to bottom, whose right upper corner is at `topRight` of
/// `owner`, and returns at once; the menu deletes itself. `chosen` gets the chosen command, nothing
/// when the menu is dismissed.
QMenu* ShowPopupMenu(QWidget* owner, QPoint topRight, const std::vector<PopupCommand>& commands,
                     std::function<void(int)> chosen);

/// `text` as a menu shows it literally: "&" marks no shortcut, tabs and line breaks are blanks.
QString MenuText(const std::wstring& text);

}  // namespace vexa

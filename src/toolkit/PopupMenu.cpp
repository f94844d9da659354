#include "toolkit/PopupMenu.h"

#include <QMenu>
#include <utility>

#include "display/WideText.h"
#include "toolkit/LineText.h"

namespace vexa {

QString MenuText(const std::wstring& text) {
  QString caption = FromWide(LineText(text));
  caption.replace(u'\t', u' ');
  caption.replace(QStringLiteral("&"), QStringLiteral("&&"));
  return caption;
}

QMenu* ShowPopupMenu(QWidget* owner, QPoint topRight, const std::vector<PopupCommand>& commands,
                     std::function<void(int)> chosen) {
  auto* menu = new QMenu(owner);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const PopupCommand& command : commands) {
    menu->addAction(MenuText(command.caption))->setData(command.command);
  }
  QObject::connect(
      menu, &QMenu::triggered, owner,
      [chosen = std::move(chosen)](const QAction* action) { chosen(action->data().toInt()); });
  menu->popup(owner->mapToGlobal(topRight) - QPoint(menu->sizeHint().width(), 0));
  return menu;
}

}  // namespace vexa

#include "toolkit/PopupMenu.h"

#include <QMenu>
#include <utility>

#include "display/WideText.h"
#include "toolkit/LineText.h"
#include "toolkit/Theme.h"

namespace vexa {

QString MenuText(const std::wstring& text) {
  QString caption = FromWide(LineText(text));
  caption.replace(u'\t', u' ');
  caption.replace(QStringLiteral("&"), QStringLiteral("&&"));
  return caption;
}

QMenu* ShowPopupMenu(QWidget* owner, QPoint anchor, PopupSide side,
                     const std::vector<PopupCommand>& commands, std::function<void(int)> chosen,
                     const std::wstring& title) {
  auto* const menu = new QMenu(owner);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (!title.empty()) {
    menu->setTitle(MenuText(title));
    QAction* const heading = menu->addAction(MenuText(title));
    heading->setEnabled(false);
    QFont bold = menu->font();
    bold.setBold(true);
    heading->setFont(bold);
    theme::KeepReadable(menu);
    menu->addSeparator();
  }
  for (const PopupCommand& command : commands) {
    if (command.caption.empty()) {
      menu->addSeparator();
    } else {
      menu->addAction(MenuText(command.caption))->setData(command.command);
    }
  }
  QObject::connect(
      menu, &QMenu::triggered, owner,
      [chosen = std::move(chosen)](const QAction* action) { chosen(action->data().toInt()); });
  const int leftward = side == PopupSide::Left ? menu->sizeHint().width() : 0;
  menu->popup(owner->mapToGlobal(anchor) - QPoint(leftward, 0));
  return menu;
}

}  // namespace vexa

#include "macros/MemoryPopup.h"

#include <QMenu>
#include <utility>

namespace vexa {

void ShowMemoryMenu(QWidget* owner, QPoint anchor, PopupSide side,
                    const std::vector<PopupCommand>& commands, MemoryHandlers handlers) {
  ShowPopupMenu(owner, anchor, side, commands, [handlers = std::move(handlers)](int command) {
    handlers.at(static_cast<MemoryCommand>(command))();
  })->setObjectName(QStringLiteral("Memory"));
}

}  // namespace vexa

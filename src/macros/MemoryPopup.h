#pragma once

#include <QPoint>
#include <functional>
#include <map>
#include <vector>

#include "macros/MemoryMenu.h"
#include "toolkit/PopupMenu.h"

namespace vexa {

/// What a screen does at the commands of its "MEM" menu.
using MemoryHandlers = std::map<MemoryCommand, std::function<void()>>;

/// Opens the "MEM" menu of `commands` with its upper corner at `anchor` of `owner`, and returns at
/// once; the handler of the chosen command runs.
void ShowMemoryMenu(QWidget* owner, QPoint anchor, PopupSide side,
                    const std::vector<PopupCommand>& commands, MemoryHandlers handlers);

}  // namespace vexa

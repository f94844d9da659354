#pragma once

#include <string>

namespace vexa {

/// A command of a pop-up menu and its text; an empty text is a separator.
struct PopupCommand {
  int command;
  std::wstring caption;
};

}  // namespace vexa

#pragma once

#include "toolkit/ModeScreen.h"

namespace vexa {

/// The screen of a mode that this version does not have yet: it says so and offers the others.
class ComingScreen : public ModeScreen {
  Q_OBJECT

 public:
  ComingScreen(Mode mode, QWidget* parent);
};

}  // namespace vexa

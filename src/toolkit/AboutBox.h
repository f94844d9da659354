#pragma once

class QWidget;

namespace vexa {

/// Shows product name, version and rights over `parent` until it is closed.
void ShowAboutBox(QWidget* parent);

}  // namespace vexa

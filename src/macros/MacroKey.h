#pragma once

#include <functional>

class QDialog;
class QWidget;

namespace vexa {

class EditLine;
class SettingsStore;

/// What the "Mac" key does: lets the user pick a macro, whose call goes around the selection of
/// `line`. Where there is no macro, says so and then runs `editMacros`. The dialog is still to be
/// opened; null: there is none.
QDialog* NewMacroPicker(SettingsStore& store, EditLine* line, QWidget* screen,
                        std::function<void()> editMacros);

}  // namespace vexa

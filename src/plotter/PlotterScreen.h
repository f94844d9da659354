#pragma once

#include "plotter/PlotFunctions.h"
#include "toolkit/ExpressionScreen.h"

class QBoxLayout;
class QPushButton;

namespace vexa {

class NoticeLine;
class RangeForm;
class TouchComboBox;

/// The function plotter's screen: function field, list, ranges, options and keypad. It shows and
/// forwards; PlotFunctions and the key table decide.
class PlotterScreen : public ExpressionScreen {
  Q_OBJECT

 public:
  /// Reads the settings. `settingsStore` must outlive the screen.
  PlotterScreen(SettingsStore& settingsStore, QWidget* parent);
  /// Writes the settings.
  ~PlotterScreen() override;

  void StoreState() override;

 protected:
  KeypadState State() const override;
  void RunKey(std::wstring_view caption) override;

 private:
  struct KeyCommand {
    std::wstring_view caption;
    void (PlotterScreen::*run)();
  };
  static const KeyCommand kKeyCommands[];

  void BuildList();
  QPushButton* NewListButton(QBoxLayout* row, const QString& caption,
                             void (PlotterScreen::*pressed)());
  void FollowFocus();
  /// Shows list, buttons and keys as the rules say.
  void Refresh();
  /// Stores what the user sees.
  void Save();
  /// Says what becomes of the field's text.
  void ShowNotice();
  /// Shows and stores what a command decided; true: it succeeded.
  bool Show(const PlotterOutcome& outcome);

  void Add();
  void Delete();
  void SelectFunction(int index);
  void Plot();
  void ToggleAngle();
  void RecallHistory();
  void InsertMacro();
  void EditMacros();
  void RecallVariable();
  void TakeVariable(QWidget* target, int index);
  void Configure();

  SettingsStore& store;
  PlotFunctions functions;
  NoticeLine* notice;
  TouchComboBox* list;
  QPushButton* addButton = nullptr;
  QPushButton* deleteButton = nullptr;
  RangeForm* form = nullptr;
  /// The field or range box that had the focus last.
  QWidget* lastFocused;
};

}  // namespace vexa

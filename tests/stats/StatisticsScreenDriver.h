#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <memory>

#include "display/MemorySettingsStore.h"
#include "toolkit/ModeScreen.h"

namespace vexa::test {

/// A statistics screen and what a user does with it: types, presses keys by caption, answers
/// boxes, reads what is shown.
class StatisticsScreenDriver {
 public:
  /// `folder` is where files beside the settings go; none: there are none.
  explicit StatisticsScreenDriver(Mode mode, QSize size = {340, 560}, const QString& folder = {});
  ~StatisticsScreenDriver();

  /// Makes this window the one with the focus.
  void Activate();
  /// Types the texts into the edits, from the first on.
  void Type(const QStringList& texts);
  /// Types them and adds the row.
  void Add(const QStringList& texts);
  QPushButton* Key(const QString& caption) const;
  void Press(const QString& caption);
  bool IsShown(const QString& caption) const { return Key(caption)->isVisible(); }
  bool IsEnabled(const QString& caption) const { return Key(caption)->isEnabled(); }
  /// The captions of the enabled keys that are shown.
  QStringList EnabledKeys() const;
  QLineEdit* Edit(const QString& name) const { return screen->findChild<QLineEdit*>(name); }

  QTableView* Table() const { return screen->findChild<QTableView*>(QStringLiteral("Data")); }
  /// Every row's texts, joined by blanks.
  QStringList Rows() const;
  void SelectRows(const QList<int>& rows);
  QList<int> SelectedRows() const;
  void ClickHeading(int column);

  QString Total() const { return screen->findChild<QLabel*>(QStringLiteral("Total"))->text(); }
  bool TotalIsShown() const;
  QString Result() const;
  /// What the quiet line says; empty: it is hidden.
  QString Notice() const;

  /// The box that waits for an answer, or null.
  QMessageBox* Box() const;
  /// Its text; none: "no box".
  QString BoxText() const { return Box() ? Box()->text() : QStringLiteral("no box"); }
  void Answer(QMessageBox::StandardButton button);
  /// The menu that is open, by name.
  QMenu* Menu(const QString& name) const { return screen->findChild<QMenu*>(name); }
  QStringList MenuTexts(const QString& name) const;
  void ChooseFrom(const QString& menuName, const QString& text);
  /// A command of the menu bar, or null.
  QAction* MenuCommand(const QString& menuTitle, const QString& text) const;
  /// Runs it.
  void Command(const QString& menuTitle, const QString& text);

  /// A file in a folder of its own that goes with the object.
  QString FileName(const QString& name) const { return dir.filePath(name); }
  QByteArray FileBytes(const QString& name) const;
  void PutFile(const QString& name, const QByteArray& bytes) const;
  /// Loads the file with these bytes.
  void Load(const QByteArray& bytes);

  MemorySettingsStore store;
  std::unique_ptr<QWidget> window;
  ModeScreen* screen;

 private:
  QTemporaryDir dir;
};

}  // namespace vexa::test

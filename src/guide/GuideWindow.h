#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <vector>

#include "guide/GuideSearch.h"
#include "guide/KeysPage.h"

class QLineEdit;

namespace vexa {

/// The guide in a window of its own: the pages that are built into the program, one at a time, and
/// a field that searches all of them. Nothing is read from a network or a file.
class GuideWindow : public QWidget {
  Q_OBJECT

 public:
  /// `keys` are what the page of the keys is made from.
  GuideWindow(std::span<const KeyGroup> keys, QWidget* parent);

  /// Shows the page of this name, or the table of contents where there is no such page, and brings
  /// the window to the front.
  void ShowPage(std::string_view name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void LoadPages(std::span<const KeyGroup> keys);
  void BuildControls();
  void Search(const QString& words);
  /// Follows a link within the guide: to a page, or to a heading of the page shown.
  void Follow(const QUrl& link);

  std::vector<GuideText> pages;
  QLineEdit* searchField = nullptr;
  QTextBrowser* browser = nullptr;
};

}  // namespace vexa

#pragma once

#include <QElapsedTimer>
#include <QListView>

namespace vexa {

/// The entries of a drop-down list, searched by what is typed in quick succession.
class SearchedList : public QListView {
  Q_OBJECT

 public:
  using QListView::QListView;

  /// True while a next character continues what was typed.
  bool IsSearching() const;
  void keyboardSearch(const QString& search) override;

 private:
  QString typed;
  QElapsedTimer sinceTyped;
};

}  // namespace vexa

#pragma once

#include <QListWidget>

namespace vexa {

/// A list of texts whose rows are high enough for a finger, of which one or none is selected. What
/// counts is the visible selection, which the focus alone does not make.
class TouchList : public QListWidget {
  Q_OBJECT

 public:
  explicit TouchList(QWidget* parent);

  /// Appends a row.
  void AddLine(const QString& text);
  /// The selected row, -1: none.
  int SelectedRow() const;
  /// Selects `row` and scrolls to it; -1: none.
  void SelectRow(int row);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace vexa

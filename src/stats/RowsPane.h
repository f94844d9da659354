#pragma once

#include <QWidget>

class QLabel;

namespace vexa {

class DataList;
class DataTableView;
class KeptRowsOffer;

/// The data list with its quiet lines: the offer of kept rows above it, a notice below. The lines
/// take their room from the list, so that no key moves away under a finger.
class RowsPane : public QWidget {
  Q_OBJECT

 public:
  /// `list` must outlive the pane.
  RowsPane(const DataList& list, QWidget* parent);

  DataTableView* Table() const { return table; }
  KeptRowsOffer* Offer() const { return offer; }
  /// Shows `text` below the list; empty: nothing.
  void ShowNotice(const QString& text);

  /// The list's, whatever is shown beside it.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return false; }

 private:
  KeptRowsOffer* offer;
  DataTableView* table;
  QLabel* notice;
};

}  // namespace vexa

#pragma once

#include <QWidget>

namespace vexa {

/// The quiet line that offers the rows that were kept aside: it waits beside the list until it is
/// answered.
class KeptRowsOffer : public QWidget {
  Q_OBJECT

 public:
  explicit KeptRowsOffer(QWidget* parent);

 signals:
  void RestoreAsked();
  void DiscardAsked();
};

}  // namespace vexa

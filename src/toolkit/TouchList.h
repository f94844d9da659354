#pragma once

#include <QListWidget>

namespace vexa {

/// A list of texts whose rows are high enough for a finger.
class TouchList : public QListWidget {
  Q_OBJECT

 public:
  explicit TouchList(QWidget* parent);

  /// Appends a row.
  void AddLine(const QString& text);
};

}  // namespace vexa

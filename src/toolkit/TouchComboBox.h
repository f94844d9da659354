#pragma once

#include <QComboBox>

namespace vexa {

/// A drop-down list whose entries are high enough for a finger. Typing searches the entries.
class TouchComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit TouchComboBox(QWidget* parent);

  /// Appends an entry.
  void AddLine(const QString& text);

  void showPopup() override;

 signals:
  /// The list is about to drop down.
  void Opening();
};

}  // namespace vexa

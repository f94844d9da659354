#pragma once

#include <QFrame>

class QLabel;

namespace vexa {

/// A strip with something that the user should know, such as that settings cannot be saved. It
/// takes neither the focus nor an answer, and stays until it is dismissed.
class NoticeBar : public QFrame {
  Q_OBJECT

 public:
  explicit NoticeBar(QWidget* parent);

  /// Shows `sentence`, below those that are shown already.
  void Add(const QString& sentence);

 signals:
  /// It was shown, has grown or has been dismissed.
  void HeightChanged();

 private:
  void Dismiss();

  QLabel* text;
};

}  // namespace vexa

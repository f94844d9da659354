#pragma once

#include <QLabel>

namespace vexa {

/// A quiet word in one line, there while it has a text. Its letters shrink to the width; the height
/// of their line is left to them on the smallest display, too.
class NoticeLine : public QLabel {
  Q_OBJECT

 public:
  explicit NoticeLine(QWidget* parent);

  void ShowText(const QString& text);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitText();

  /// The letters' size where the width does not matter, in pixels.
  int pixels;
};

}  // namespace vexa

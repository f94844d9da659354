#pragma once

#include <QPlainTextEdit>

namespace vexa {

/// A right-aligned text of one or more lines for reading: selectable, can be copied (a number as an
/// expression holds it), and always shown whole, in the largest size that has room, a line over
/// several rows where a row is too short.
class ResultLine : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit ResultLine(QWidget* parent);

  /// Shows `text`.
  void ShowText(const QString& text);

 protected:
  bool event(QEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void FitText();
  /// The height of the text at `pixelSize` and the number of its rows.
  struct Extent {
    qreal height;
    int rows;
  };
  Extent Measure(int pixelSize, qreal width) const;
};

}  // namespace vexa

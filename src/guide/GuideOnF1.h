#pragma once

#include <QObject>
#include <functional>
#include <string_view>

class QWidget;

namespace vexa {

/// Opens the guide when F1 is pressed, in a box that waits for an answer too, at the page of the
/// screen or dialog in front.
class GuideOnF1 : public QObject {
  Q_OBJECT

 public:
  /// Shows a page.
  using Open = std::function<void(std::string_view page)>;

  /// Watches the whole application.
  explicit GuideOnF1(Open open);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Open open;
};

/// The page of the guide for what has the focus: the innermost screen or dialog with a page.
std::string_view GuidePageOf(const QWidget* widget);

}  // namespace vexa

#pragma once

#include <QLineEdit>
#include <string>

namespace vexa {

/// The box of a range's bound. A number that is too long for it is shown with fewer digits, never
/// without its exponent; while nobody edits it, the box keeps the exact text.
class RangeEdit : public QLineEdit {
  Q_OBJECT

 public:
  explicit RangeEdit(QWidget* parent);

  void ShowText(const std::wstring& text);
  /// The text that was shown, however it is seen, or what it was edited to.
  std::wstring Text() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  bool IsEdited() const { return text() != seen; }
  /// Shows as much of the exact text as there is room for.
  void Fit();
  int Room() const;

  std::wstring exact;
  /// What of it is seen.
  QString seen;
};

}  // namespace vexa

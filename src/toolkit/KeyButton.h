#pragma once

#include <QPushButton>

#include "toolkit/Key.h"

namespace vexa {

/// A key on the screen: drawn by the program's theme, with a face that grows with the key. Enter is
/// left to the screen's default button, a click leaves the keyboard's focus where it is.
class KeyButton : public QPushButton {
  Q_OBJECT

 public:
  /// `key` must outlive the button.
  KeyButton(const Key& key, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont FaceFont() const;

  const Key& key;
};

}  // namespace vexa

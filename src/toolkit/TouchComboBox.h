#pragma once

#include <QComboBox>

namespace vexa {

class SearchedList;

/// A drop-down list whose entries are high enough for a finger. Typing searches the entries, open
/// or closed, by the beginnings of their words; an entry that is too long for the box ends in
/// "...". The mouse wheel turns it only while it has the focus, so that scrolling past it changes
/// nothing.
class TouchComboBox : public QComboBox {
  Q_OBJECT

 public:
  explicit TouchComboBox(QWidget* parent);

  void showPopup() override;
  void hidePopup() override;
  /// Whether the entry was chosen last in the open list, not by a key or the wheel while it was
  /// closed.
  bool WasChosenInOpenList() const { return chosenInOpenList; }

 signals:
  /// The list is about to drop down.
  void Opening();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  SearchedList* list;
  bool chosenInOpenList = false;
};

}  // namespace vexa

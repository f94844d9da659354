#include "toolkit/Dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "display/SettingsLayout.h"
#include "display/WideText.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
/// Dialogs open as wide as this, or narrower where the screen is.
constexpr int kWidth = 300;
/// What the window's own frame may take of the screen's height.
constexpr int kFrameHeight = 28;
/// Where the screen is too small for the desktop's font, texts shrink down to this, in pixels.
constexpr int kSmallestText = 8;
/// The room beside a button's caption.
constexpr int kButtonPadding = 6;

/// Styles ask for wide buttons; these shrink, so that four of them stand side by side on the
/// smallest screen.
class RowButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo(minimumSizeHint()); }
  QSize minimumSizeHint() const override {
    return {fontMetrics().horizontalAdvance(text()) + 2 * kButtonPadding, kTouchHeight};
  }
};

}  // namespace

Dialog::Dialog(const QString& name, QWidget* parent)
    : QDialog(parent), content(new QVBoxLayout(this)) {
  setObjectName(name);
  setWindowTitle(FromWide(settings::kSettingsKey));
  setAttribute(Qt::WA_DeleteOnClose);
  content->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  content->setSpacing(kGap);
  SetOpeningHeight(0);
}

QSize Dialog::Room() const {
  return screen()->availableSize() - QSize(0, kFrameHeight);
}

void Dialog::SetOpeningHeight(int height) {
  resize(QSize(kWidth, height).boundedTo(Room()));
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* const button = qobject_cast<QPushButton*>(focusWidget());
  // Buttons are no automatic defaults, which would leave Return to the one that saves or closes.
  if (isReturn && button && button->isEnabled()) return button->click();
  QDialog::keyPressEvent(event);
}

void Dialog::showEvent(QShowEvent* event) {
  QFont text = font();
  int pixels = QFontInfo(text).pixelSize();
  const QSize room = Room();
  while (pixels > kSmallestText &&
         content->totalMinimumSize().boundedTo(room) != content->totalMinimumSize()) {
    text.setPixelSize(--pixels);
    setFont(text);
    content->activate();
  }
  resize(size().boundedTo(room));
  QDialog::showEvent(event);
}

QLabel* Dialog::AddLabel(std::wstring_view text) {
  auto* const label = new QLabel(FromWide(text), this);
  label->setTextFormat(Qt::PlainText);
  content->addWidget(label);
  return label;
}

QLabel* Dialog::NewFieldLabel(std::wstring_view label, QWidget* field) {
  auto* const fieldLabel = new QLabel(FromWide(label), this);
  fieldLabel->setTextFormat(Qt::PlainText);
  fieldLabel->setBuddy(field);
  field->setObjectName(FromWide(label));
  field->setAccessibleName(FromWide(label));
  return fieldLabel;
}

QLabel* Dialog::AddField(std::wstring_view label, QWidget* field, int stretch) {
  QLabel* const fieldLabel = NewFieldLabel(label, field);
  content->addWidget(fieldLabel);
  content->addWidget(field, stretch);
  return fieldLabel;
}

QLabel* Dialog::AddFieldRow(std::wstring_view label, QWidget* field) {
  QLabel* const fieldLabel = NewFieldLabel(label, field);
  auto* const row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(fieldLabel);
  row->addWidget(field, 1);
  content->addLayout(row);
  return fieldLabel;
}

QHBoxLayout* Dialog::AddButtonRow() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(kGap);
  content->addLayout(row);
  return row;
}

QPushButton* Dialog::NewButton(QHBoxLayout* row, std::wstring_view caption) {
  auto* const button = new RowButton(FromWide(caption), this);
  button->setObjectName(FromWide(caption));
  button->setAccessibleName(FromWide(caption));
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  button->setAutoDefault(false);
  row->addWidget(button);
  return button;
}

void Dialog::SetDefault(QPushButton* button) {
  button->setDefault(true);
}

}  // namespace vexa

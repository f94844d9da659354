#include "plotter/RangeForm.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "display/WideText.h"
#include "plotter/RangeEdit.h"
#include "toolkit/KeyboardOnFocus.h"
#include "toolkit/LimitLength.h"
#include "toolkit/NumberBox.h"
#include "toolkit/TouchHeight.h"
#include "toolkit/TouchSize.h"

namespace vexa {
namespace {

constexpr int kGap = 3;
/// A minimum and its maximum stand side by side: label, box, label, box.
constexpr int kBoxesInRow = 2;
constexpr int kBoxRows = static_cast<int>(kRangeBoxCaptions.size()) / kBoxesInRow;

/// The options in the order of their check boxes.
constexpr std::array<bool PlotOptions::*, kPlotOptionCaptions.size()> kOptions{
    &PlotOptions::grid, &PlotOptions::line, &PlotOptions::coordinates};

}  // namespace

RangeForm::RangeForm(int leastHeight, QWidget* parent) : QWidget(parent) {
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  auto* const grid = new QGridLayout;
  grid->setSpacing(kGap);
  column->addLayout(grid, kBoxRows);
  BuildBoxes(grid, leastHeight);
  auto* const row = new QHBoxLayout;
  column->addLayout(row, 1);
  for (std::size_t i = 0; i < checks.size(); ++i) {
    const QString caption = FromWide(kPlotOptionCaptions[i]);
    checks[i] = new QCheckBox(caption, this);
    checks[i]->setObjectName(caption);
    checks[i]->setAccessibleName(caption);
    // A click leaves the focus where the user types.
    checks[i]->setFocusPolicy(Qt::TabFocus);
    GrowToTouchHeight(checks[i], leastHeight);
    row->addWidget(checks[i]);
  }
  const int rows = kBoxRows + 1;
  setMaximumHeight(rows * kTouchHeight + (rows - 1) * kGap);
  SetOptions({});
}

void RangeForm::BuildBoxes(QGridLayout* grid, int leastHeight) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const QString caption = FromWide(kRangeBoxCaptions[i]);
    auto* const label = new QLabel(caption, this);
    boxes[i] = new RangeEdit(this);
    LimitLength(boxes[i], kNumberLength);
    boxes[i]->setObjectName(caption);
    boxes[i]->setAccessibleName(caption);
    boxes[i]->setMinimumWidth(0);
    GrowToTouchHeight(boxes[i], leastHeight);
    new KeyboardOnFocus(boxes[i]);
    connect(boxes[i], &QLineEdit::textChanged, this, &RangeForm::RangesChanged);
    label->setBuddy(boxes[i]);
    const int row = static_cast<int>(i) / kBoxesInRow;
    const int column = static_cast<int>(i) % kBoxesInRow * 2;
    grid->addWidget(label, row, column);
    grid->addWidget(boxes[i], row, column + 1);
  }
}

RangeTexts RangeForm::Texts() const {
  RangeTexts texts;
  for (std::size_t i = 0; i < boxes.size(); ++i) texts[i] = boxes[i]->Text();
  return texts;
}

void RangeForm::SetTexts(const RangeTexts& texts) {
  for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->ShowText(texts[i]);
}

PlotOptions RangeForm::Options() const {
  PlotOptions options;
  for (std::size_t i = 0; i < checks.size(); ++i) options.*kOptions[i] = checks[i]->isChecked();
  return options;
}

void RangeForm::SetOptions(const PlotOptions& options) {
  for (std::size_t i = 0; i < checks.size(); ++i) checks[i]->setChecked(options.*kOptions[i]);
}

}  // namespace vexa

#include "app/ProgramGuide.h"

#include <QApplication>
#include <array>

#include "app/CalculatorKeypad.h"
#include "plotter/PlotterKeypad.h"

namespace vexa {
namespace {

std::array<KeyGroup, 2> KeyGroups() {
  return {{{"Scientific Calculator", CalculatorKeys()}, {"Function Plotter", PlotterKeys()}}};
}

}  // namespace

ProgramGuide::ProgramGuide() : onF1([this](std::string_view page) { Show(page); }) {}

void ProgramGuide::Show(std::string_view page) {
  // A box that waits for an answer blocks all windows but those that belong to it.
  QWidget* const owner = QApplication::activeModalWidget();
  if (!window || window->parentWidget() != owner) {
    delete window;
    window = new GuideWindow(KeyGroups(), owner);
  }
  window->ShowPage(page);
}

}  // namespace vexa

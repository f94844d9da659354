#include "guide/GuidePages.h"

#include <algorithm>

namespace vexa {
namespace {

constexpr GuidePage kPages[] = {
    {"index", "Vexa Calculator"},
    {"first-hour", "The first hour"},
    {"calculator", "Scientific Calculator"},
    {"functions", "Functions"},
    {"base-n", "Integers in other bases"},
    {"macros", "Macros"},
    {"memory", "Memory"},
    {"converter", "Unit converter"},
    {"plotter", "Function Plotter"},
    {"statistics", "Statistics"},
    {"regression", "Regression"},
    {"files", "Files and formats"},
    {"keys", "Keys"},
    {"privacy", "Privacy"},
};

struct ScreenPage {
  std::string_view screen;
  std::string_view page;
};

constexpr ScreenPage kScreenPages[] = {
    {"CalculatorScreen", "calculator"},   {"PlotterScreen", "plotter"},
    {"GraphViewDialog", "plotter"},       {"PlotterOptionsDialog", "plotter"},
    {"OneVarScreen", "statistics"},       {"TwoVarScreen", "regression"},
    {"UnitConverterDialog", "converter"}, {"UserConversionDialog", "converter"},
    {"MacroEditorDialog", "macros"},      {"MacroListDialog", "macros"},
    {"MemoryVariableDialog", "memory"},   {"DisplayFormattingDialog", "calculator"},
};

}  // namespace

std::span<const GuidePage> GuidePages() {
  return kPages;
}

std::string_view GuidePageOf(std::string_view screenClass) {
  const auto found = std::ranges::find(kScreenPages, screenClass, &ScreenPage::screen);
  return found == std::end(kScreenPages) ? std::string_view() : found->page;
}

}  // namespace vexa

#pragma once

#include <QPointer>
#include <string_view>

#include "guide/GuideOnF1.h"
#include "guide/GuideWindow.h"

namespace vexa {

/// The guide of the running program: one window at most, opened by F1 or from a menu.
class ProgramGuide {
 public:
  ProgramGuide();
  ~ProgramGuide() { delete window; }
  ProgramGuide(const ProgramGuide&) = delete;
  ProgramGuide& operator=(const ProgramGuide&) = delete;

  /// Shows a page, in front of the dialog that waits for an answer where there is one.
  void Show(std::string_view page);

 private:
  QPointer<GuideWindow> window;
  GuideOnF1 onF1;
};

}  // namespace vexa

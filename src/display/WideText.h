#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace vexa {

/// A rule's text for the screen. A screen's text for a rule: QString::toStdWString.
inline QString FromWide(std::wstring_view text) {
  return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace vexa

#pragma once

#include <string>

namespace vexa::terminal {

/// The manual page, for troff.
std::string ManPage();

}  // namespace vexa::terminal

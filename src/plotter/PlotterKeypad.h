#pragma once

#include <span>

#include "toolkit/KeypadState.h"

namespace vexa {

/// The plotter's keys: those of the calculator's decimal base in their places, and its own.
std::span<const Key> PlotterKeys();

}  // namespace vexa

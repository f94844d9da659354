#pragma once

#include <string>
#include <vector>

#include "plotter/GraphData.h"
#include "terminal/Command.h"
#include "terminal/Console.h"

namespace vexa::terminal {

inline constexpr Argument kFunctionsArgument{.name = "FUNCTION",
                                             .help = "A formula of X, up to three of them",
                                             .kind = WordKind::Expression,
                                             .most = kMaxGraphFunctions};
inline constexpr Option kXOption{.name = "x",
                                 .letter = 'x',
                                 .value = "MIN MAX",
                                 .help = "Range of X; left out: as in the plotter",
                                 .values = 2};
inline constexpr Option kYOption{.name = "y",
                                 .letter = 'y',
                                 .value = "MIN MAX",
                                 .help = "Range of Y; left out: as in the plotter",
                                 .values = 2};

/// The functions and ranges that are given, or the store's ranges; returns what is wrong with them.
std::wstring ReadGraph(const Given& given, SettingsStore& store, GraphData& graph);

}  // namespace vexa::terminal

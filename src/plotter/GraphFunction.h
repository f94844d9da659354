#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "macros/MacroTable.h"
#include "plotter/GraphData.h"

namespace vexa {

/// What a list of functions calls the function with this text at `position`, 0 to 2.
std::wstring GraphLabel(std::size_t position, std::wstring_view text);

/// As much of a function's text or label as a list has to show: a stored text may be of any length.
std::wstring ListText(std::wstring_view text);

/// The sentence that refuses a graph because of the function with this text: the text, shortened,
/// and the engine's own sentence.
std::wstring FunctionRefusal(std::wstring_view text, std::wstring_view engineSentence);

/// Makes the function with this text for `position` of a graph. Returns the engine's sentence when
/// the text is no formula of X; empty: success.
std::wstring ParseGraphFunction(std::size_t position, std::wstring_view text,
                                GraphFunction& function);
/// The same for a text in which macros may be called.
std::wstring ParseGraphFunction(std::size_t position, std::wstring_view text,
                                const MacroTable& macros, GraphFunction& function);

}  // namespace vexa

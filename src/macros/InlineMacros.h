#pragma once

#include <string>
#include <string_view>

#include "macros/MacroTable.h"

namespace vexa {

/// `formula` with every macro call replaced by the macro's own formula, the call's arguments in the
/// places of its variables: what the calls stand for at any value of the formula's variables. A
/// macro is also found by its name without blanks. What the calculator would refuse whatever the
/// values are stores the calculator's sentence in `error`, and the outcome means nothing; an engine
/// checks the rest.
std::wstring InlineMacros(std::wstring_view formula, const MacroTable& macros, std::wstring& error);

}  // namespace vexa

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "engine/CalcModes.h"

namespace vexa {

/// The place in `expression` at which the engine refuses it: the token that it cannot read, or the
/// one that does not fit to its neighbours. None when the expression is refused as a whole, or only
/// its values are.
std::optional<std::size_t> ErrorPlace(std::wstring_view expression, BaseType base);

}  // namespace vexa

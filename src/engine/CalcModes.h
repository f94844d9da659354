#pragma once

namespace vexa {

/// Unit of the trigonometric functions, with the stored codes. Any value but Degrees acts as
/// radians.
enum class AngleType : int { Degrees = 1, Radians = 2 };

/// Number base of an expression and of its result, with the stored codes.
enum class BaseType : int { Dec = 1, Hex = 2, Bin = 3, Oct = 4 };

}  // namespace vexa

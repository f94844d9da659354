#pragma once

namespace vexa {

/// Tells the processor that the upper halves of its vector registers hold nothing. Other libraries,
/// the toolkit among them, may leave something there, and while they do, a call of a mathematical
/// function takes about ten times as long: those use the wide instructions, and this program the
/// narrow ones. Does nothing where there are no such registers.
void ForgetUpperHalves();

}  // namespace vexa

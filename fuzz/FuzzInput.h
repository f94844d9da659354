#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>

#include "engine/CalcEngine.h"
#include "engine/TokenList.h"

/// What the fuzz targets share: reading settings and text from the input, and promises to check.
namespace vexa::fuzz {

/// Ends the run, which keeps the input, unless `holds`.
inline void Promise(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "Broken promise: %s\n", promise);
  std::abort();
}

/// Bytes of the input, taken from its front; 0 behind its end.
class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : rest(data, size) {}

  std::uint8_t TakeByte() {
    if (rest.empty()) return 0;
    const std::uint8_t byte = rest.front();
    rest = rest.subspan(1);
    return byte;
  }

  /// One byte: the lowest bit the angle unit, the others the base, also two that are not in the
  /// enum. In the kept inputs 0 is decimal, 2 hexadecimal, 4 binary, 6 octal, in degrees, and the
  /// odd digits are the same in radians.
  void TakeModes(AngleType& angle, BaseType& base) {
    constexpr int kBases[] = {1, 2, 3, 4, 0, 77};
    const std::uint8_t byte = TakeByte();
    angle = byte % 2 == 0 ? AngleType::Degrees : AngleType::Radians;
    base = static_cast<BaseType>(kBases[byte / 2 % 6]);
  }

  /// The text up to the byte `end` (none: up to the end of the input), read as UTF-8. A byte that
  /// is no part of a character counts as one, so that every input is some text.
  std::wstring TakeText(std::optional<std::uint8_t> end = {}) {
    std::wstring text;
    while (!rest.empty()) {
      const std::uint8_t lead = TakeByte();
      if (lead == end) break;
      const auto following = static_cast<std::size_t>(lead >= 0xC0 ? std::countl_one(lead) - 1 : 0);
      if (following == 0 || following > 3 || following > rest.size()) {
        text += static_cast<wchar_t>(lead);
        continue;
      }
      std::uint32_t character = lead & (0x3Fu >> following);
      for (std::size_t i = 0; i < following; ++i) character = character << 6 | (TakeByte() & 0x3Fu);
      text += static_cast<wchar_t>(character);
    }
    return text;
  }

  bool IsEmpty() const { return rest.empty(); }

 private:
  std::span<const std::uint8_t> rest;
};

/// Equal to the last bit.
inline bool SameValue(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// What holds after every operation on records.
inline void CheckRecords(const TokenList& list) {
  Promise(list.errorFlag == 0 || list.errorFlag == 1, "the error flag is 0 or 1");
  Promise(list.errorText.empty() == (list.errorFlag == 0), "the error flag and text agree");
  Promise(list.tokenCount >= 0 && list.tokenCount <= kMaxTokens + 1, "the records fit");
}

/// What holds after every evaluation.
inline void CheckOutcome(const CalcEngine& engine) {
  CheckRecords(engine);
  Promise(std::isfinite(engine.result), "a result is finite");
  Promise(engine.errorText.empty() || SameValue(engine.result, 0.0), "a failure's result is 0");
}

/// Two evaluations that must have come to the same end.
inline void CheckSame(const CalcEngine& a, const CalcEngine& b) {
  Promise(SameValue(a.result, b.result), "equal expressions have equal results");
  Promise(a.errorText == b.errorText, "equal expressions have equal errors");
}

}  // namespace vexa::fuzz

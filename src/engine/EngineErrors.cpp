#include "engine/EngineErrors.h"

#include <array>

namespace vexa {
namespace {

/// A sentence is `before`, the argument where it has one, and `after`.
struct ErrorSentence {
  std::wstring_view before;
  bool hasArgument;
  std::wstring_view after;
};

/// Indexed by ErrorCode. The texts are the program's vocabulary and stay as they are, grammar
/// included.
constexpr std::array<ErrorSentence, 11> kSentences{{
    {kOutOfRangeText, false, L""},
    {L"Not matched '(' and ')'.", false, L""},
    {kExpressionErrorText, false, L""},
    {L"Too many operator.", false, L""},
    {L"(", true, L") needs an argument."},
    {L"", true, L" is not supported."},
    {L"", true, L" exceeded calculation limit."},
    {L"", true, L" is not supported non-integer."},
    {L"number exceeded length limit.", false, L""},
    {L"Expression is null.", false, L""},
    {L"", true, L""},
}};

/// An argument that is not supported is shown whole up to this length.
constexpr std::size_t kLongestArgument = 17;
constexpr std::size_t kShortenedArgument = 15;

std::wstring Shortened(std::wstring_view argument) {
  if (argument.size() <= kLongestArgument) return std::wstring(argument);
  return std::wstring(argument.substr(0, kShortenedArgument)) + L"...";
}

}  // namespace

std::wstring ErrorText(ErrorCode code, std::wstring_view argument, std::wstring current) {
  const auto index = static_cast<std::size_t>(code);
  if (index >= kSentences.size()) return current;
  const ErrorSentence& sentence = kSentences[index];
  std::wstring text(sentence.before);
  if (sentence.hasArgument) {
    text += code == ErrorCode::NotSupported ? Shortened(argument) : std::wstring(argument);
  }
  text += sentence.after;
  return text;
}

}  // namespace vexa

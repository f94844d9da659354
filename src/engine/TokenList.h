#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "engine/EngineErrors.h"
#include "engine/Token.h"

namespace vexa {

/// What the evaluator and the validating parser have in common: the records of one expression and
/// the first error that any stage reported.
class TokenList {
 public:
  virtual ~TokenList() = default;

  /// The message of the last failure; empty: none.
  std::wstring errorText;
  /// 1 once any stage has reported an error. Every stage returns at once when it finds it at 1.
  int errorFlag = 0;
  TokenArray tokens{};
  /// Records in use, at most kMaxTokens + 1.
  int tokenCount = 0;

  std::span<const Token> Records() const {
    return {tokens.data(), static_cast<std::size_t>(tokenCount)};
  }

  /// Composes the message of `code` with `argument` (see ErrorText), stores it and raises the flag.
  void ReportError(ErrorCode code, std::wstring_view argument = {});
  void ReportError(const EngineError& error) { ReportError(error.code, error.argument); }

 protected:
  /// Forgets the records and the error.
  void Clear();
  /// Forgets the records, which are clear from then on.
  void ClearRecords();
};

}  // namespace vexa

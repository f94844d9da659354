#pragma once

#include <array>
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
  std::array<Token, kTokenRecords> tokens{};
  /// Records in use, at most kMaxTokens + 1.
  int tokenCount = 0;

  /// Composes the message of `code` with `argument` (see ErrorText), stores it and raises the flag.
  void ReportError(ErrorCode code, std::wstring_view argument = {});

 protected:
  /// Forgets the records and the error.
  void Clear();
  /// Clears the records from `count` on; those behind the ones in use are clear already.
  void ClearRecordsFrom(std::size_t count);
};

}  // namespace vexa

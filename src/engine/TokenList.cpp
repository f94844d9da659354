#include "engine/TokenList.h"

#include <algorithm>
#include <utility>

namespace vexa {

void TokenList::ReportError(ErrorCode code, std::wstring_view argument) {
  errorText = ErrorText(code, argument, std::move(errorText));
  errorFlag = 1;
}

void TokenList::Clear() {
  errorFlag = 0;
  errorText.clear();
  ClearRecords();
}

void TokenList::ClearRecords() {
  std::fill_n(tokens.begin(), tokenCount, Token{});
  tokenCount = 0;
}

}  // namespace vexa

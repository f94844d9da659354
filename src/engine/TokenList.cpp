#include "engine/TokenList.h"

#include <utility>

namespace vexa {

void TokenList::ReportError(ErrorCode code, std::wstring_view argument) {
  errorText = ErrorText(code, argument, std::move(errorText));
  errorFlag = 1;
}

void TokenList::Clear() {
  errorFlag = 0;
  errorText.clear();
  tokenCount = 0;
  tokens.fill({});
}

}  // namespace vexa

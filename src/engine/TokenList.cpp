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
  // All of them: a caller may have written records behind the ones in use.
  tokens.fill({});
}

void TokenList::ClearRecordsFrom(std::size_t count) {
  const auto used = static_cast<std::size_t>(tokenCount);
  for (std::size_t i = count; i <= used; ++i) tokens[i] = {};
}

}  // namespace vexa

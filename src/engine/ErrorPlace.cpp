#include "engine/ErrorPlace.h"

#include <vector>

#include "engine/AsciiCase.h"
#include "engine/Dialects.h"
#include "engine/SyntaxRules.h"

namespace vexa {

std::optional<std::size_t> ErrorPlace(std::wstring_view expression, BaseType base) {
  TokenList list;
  std::vector<std::size_t> places;
  const std::size_t read =
      Tokenize(ToLowerAscii(expression), ExpressionDialect(base), list, &places);
  if (list.errorFlag == 1) return read;
  std::optional<std::size_t> record;
  FindSyntaxError(base == BaseType::Dec ? SyntaxRules::Decimal : SyntaxRules::Base, list.Records(),
                  &record);
  if (!record) return std::nullopt;
  return places[*record];
}

}  // namespace vexa

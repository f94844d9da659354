#include "engine/Tokenizer.h"

#include <algorithm>

#include "engine/Functions.h"

namespace vexa {
namespace {

bool IsLetter(wchar_t c) {
  return c >= L'a' && c <= L'z';
}
bool IsShift(wchar_t c) {
  return c == L'<' || c == L'>';
}

/// Length of the run of characters at the front of `text` for which `belongs` holds.
template <typename Predicate>
std::size_t RunLength(std::wstring_view text, Predicate belongs) {
  std::size_t length = 0;
  while (length < text.size() && belongs(text[length])) ++length;
  return length;
}

Token MarkRecord(wchar_t op, TokenKind kind) {
  return {.op = static_cast<signed char>(op), .kind = kind};
}

const Word* FindWord(std::wstring_view text, const Dialect& dialect) {
  for (const std::span<const Word>& words : {dialect.words, dialect.variables}) {
    const auto found = std::ranges::find(words, text, &Word::text);
    if (found != words.end()) return &*found;
  }
  return nullptr;
}

const Keyword* FindFunction(std::wstring_view text, const Dialect& dialect) {
  if (!dialect.hasFunctions) return nullptr;
  const auto found = std::ranges::find(kKeywords, text, &Keyword::name);
  return found == kKeywords.end() ? nullptr : &*found;
}

/// Reads the front of `text` as one token. Returns its length and appends its record, or reports an
/// error.
struct TokenReader {
  const Dialect& dialect;
  TokenList& list;

  std::size_t Read(std::wstring_view text) {
    const wchar_t c = text.front();
    if (c == L' ') return 1;
    Token number;
    const std::size_t numberLength = dialect.readNumber(text, number, list);
    if (list.errorFlag == 1) return 0;
    if (numberLength > 0) return Append(number, numberLength);
    if (dialect.operators.find(c) != std::wstring_view::npos) {
      return Append(MarkRecord(c, kOperatorKind), 1);
    }
    if (c == L'(' || c == L')') return Append(MarkRecord(c, kParenthesisKind), 1);
    if (IsShift(c)) return ReadShift(text.substr(0, RunLength(text, IsShift)));
    if (IsLetter(c)) {
      const std::size_t length = RunLength(text, IsLetter);
      return ReadWord(text.substr(0, length), length == text.size());
    }
    return Refuse({ErrorCode::NotSupported, text.substr(0, 1)});
  }

  std::size_t ReadShift(std::wstring_view run) {
    if (run != L"<<" && run != L">>") return Refuse({ErrorCode::NotSupported, run});
    return Append(MarkRecord(run.front(), kOperatorKind), run.size());
  }

  std::size_t ReadWord(std::wstring_view text, bool endsExpression) {
    if (const Keyword* const function = FindFunction(text, dialect)) {
      Append({.op = 'F', .funcCode = function->code, .kind = kFunctionKind}, text.size());
      return endsExpression ? Refuse(function->missingArgument) : text.size();
    }
    const Word* const word = FindWord(text, dialect);
    if (!word) return Refuse({ErrorCode::NotSupported, text});
    if (!word->refusal.empty()) return Refuse({ErrorCode::Message, word->refusal});
    return Append(word->token, text.size());
  }

  std::size_t Append(const Token& token, std::size_t length) {
    list.tokens[static_cast<std::size_t>(list.tokenCount)] = token;
    ++list.tokenCount;
    return length;
  }

  std::size_t Refuse(const EngineError& error) {
    list.ReportError(error);
    return 0;
  }
};

}  // namespace

std::size_t Tokenize(std::wstring_view text, const Dialect& dialect, TokenList& list,
                     std::vector<std::size_t>* places) {
  TokenReader reader{dialect, list};
  std::size_t place = 0;
  while (place < text.size()) {
    // Tested before a blank too, so trailing blanks behind a full array are refused as well.
    if (list.tokenCount > kMaxTokens) {
      list.ReportError(ErrorCode::LengthLimit);
      return place;
    }
    const int recordsBefore = list.tokenCount;
    const std::size_t length = reader.Read(text.substr(place));
    if (list.errorFlag == 1) return place;
    if (places && list.tokenCount > recordsBefore) places->push_back(place);
    place += length;
  }
  return place;
}

}  // namespace vexa

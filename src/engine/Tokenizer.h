#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "engine/Token.h"
#include "engine/TokenList.h"

namespace vexa {

/// A word of an expression and the record it becomes.
struct Word {
  std::wstring_view text;
  Token token;
  /// The sentence with which the word is refused; empty: it is accepted.
  std::wstring_view refusal = {};
};

/// Reads the number at the front of a text into the token and returns its length; 0 when no number
/// stands there or an error was reported.
using NumberReader = std::size_t (*)(std::wstring_view text, Token& token, TokenList& errors);

/// What a kind of expression is made of, besides blanks, parentheses, "<<" and ">>", which every
/// kind has.
struct Dialect {
  /// Operators of one character.
  std::wstring_view operators;
  std::span<const Word> words;
  /// Further words: a formula's variables.
  std::span<const Word> variables;
  NumberReader readNumber;
  /// Whether it has the functions.
  bool hasFunctions;
};

/// Cuts the lower-case `text` into records of `list`, stopping at the first error. The records made
/// before an error stay. Returns how far it came: to the end of `text`, or to what it refused. Where
/// each record begins is appended to `places`, if given.
std::size_t Tokenize(std::wstring_view text, const Dialect& dialect, TokenList& list,
                     std::vector<std::size_t>* places = nullptr);

}  // namespace vexa

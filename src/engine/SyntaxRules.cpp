#include "engine/SyntaxRules.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace vexa {
namespace {

// A record's symbol is its operator or marker character; a number's is "0", and a variable keeps
// its letter. "[" and "]" stand for the ends of the expression.
constexpr char kNumber = '0';
constexpr char kStart = '[';
constexpr char kEnd = ']';
constexpr std::string_view kSymbols = "0xyzFp^!*/%c+-<>()[]aon";

/// Position of each symbol in kSymbols, one behind it for characters that are no symbol (records
/// that hold nothing).
constexpr auto kSymbolIndex = [] {
  std::array<std::uint8_t, 128> index{};
  index.fill(static_cast<std::uint8_t>(kSymbols.size()));
  for (std::size_t i = 0; i < kSymbols.size(); ++i) {
    index[static_cast<std::size_t>(kSymbols[i])] = static_cast<std::uint8_t>(i);
  }
  return index;
}();

constexpr std::uint8_t IndexOf(char symbol) {
  return kSymbolIndex[static_cast<std::size_t>(symbol) & 0x7f];
}

std::uint8_t IndexOf(const Token& token) {
  return token.isOperand && token.op == 0 ? IndexOf(kNumber) : IndexOf(static_cast<char>(token.op));
}

/// A set of symbols, one bit each.
using SymbolSet = std::uint32_t;

constexpr SymbolSet Bit(std::uint8_t index) {
  return SymbolSet{1} << index;
}

constexpr SymbolSet Only(std::string_view symbols) {
  SymbolSet set = 0;
  for (const char symbol : symbols) set |= Bit(IndexOf(symbol));
  return set;
}

constexpr EngineError kUnmatchedParentheses{ErrorCode::UnmatchedParentheses};

constexpr SymbolSet kAny = ~SymbolSet{0};
constexpr SymbolSet AllBut(std::string_view symbols) {
  return kAny & ~Only(symbols);
}

/// What may stand before and behind the records with one of these symbols. A record without a rule
/// may have any neighbours.
struct Rule {
  std::string_view symbols;
  SymbolSet previous;
  SymbolSet next;
};

constexpr SymbolSet kBeforeOperator = Only("0xyz)!");
constexpr SymbolSet kAfterOperator = Only("0xyz(+-F/");

constexpr Rule kSigns{"+-", kAny, Only("0xyzF(+-")};
constexpr Rule kFactorial{"!", Only("0xyz)"), Only(")+-*/^%pc<>]")};
constexpr Rule kOperators{"^*%pc<>", kBeforeOperator, kAfterOperator};
// A division is accepted right behind any operator, so 2*/3 is left to the evaluation; meant.
constexpr Rule kDivision{"/", kBeforeOperator | Only("^+-*/%pc<>"), kAfterOperator};
constexpr Rule kOpening{"(", AllBut(")"), AllBut(")")};
constexpr Rule kClosing{")", AllBut("("), AllBut("(")};

constexpr Rule kDecimalRules[] = {
    kSigns,
    kFactorial,
    kOperators,
    kDivision,
    kOpening,
    kClosing,
    {"0xyz", AllBut(")"), AllBut("(F")},
};

constexpr Rule kFormulaRules[] = {
    kSigns,
    kFactorial,
    kOperators,
    kDivision,
    kOpening,
    kClosing,
    {"0xyz", AllBut(")xyzF"), AllBut("(xyzF")},
};

// Here "x" and "y" are XOR and XNOR.
constexpr Rule kBaseRules[] = {
    {"+-", kAny, Only("0n(+-")},
    {"aoxy", Only("0)"), Only("0(n")},
    {"n", Only("[*/+-<>(aoxy"), Only("0(")},
    {"*/<>", Only("0)"), Only("0(+-n")},
    {"^!%pc", kAny, AllBut("]")},
    kOpening,
    kClosing,
    {"0", AllBut(")"), AllBut("(F")},
};

/// The neighbours of one symbol.
struct Neighbours {
  SymbolSet previous = kAny;
  SymbolSet next = kAny;
};

/// Rules by symbol index; the last entry is for records without a symbol.
using RuleTable = std::array<Neighbours, kSymbols.size() + 1>;

constexpr RuleTable MakeTable(std::span<const Rule> rules) {
  RuleTable table{};
  for (const Rule& rule : rules) {
    for (const char symbol : rule.symbols) table[IndexOf(symbol)] = {rule.previous, rule.next};
  }
  return table;
}

/// Indexed by SyntaxRules.
constexpr std::array<RuleTable, 3> kTables{MakeTable(kDecimalRules), MakeTable(kFormulaRules),
                                           MakeTable(kBaseRules)};

}  // namespace

const EngineError* FindSyntaxError(SyntaxRules rules, std::span<const Token> records,
                                   std::optional<std::size_t>* place) {
  const auto atFault = [&](std::size_t index) {
    if (place) *place = index;
    return &kExpressionError;
  };
  const RuleTable& table = kTables[static_cast<std::size_t>(rules)];
  int depth = 0;
  for (const Token& token : records) depth += (token.op == '(') - (token.op == ')');
  if (depth != 0) return &kUnmatchedParentheses;
  // What the record before allows behind itself, and what it is.
  SymbolSet expected = kAny;
  std::uint8_t previous = IndexOf(kStart);
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::uint8_t current = IndexOf(records[i]);
    const Neighbours& allowed = table[current];
    if (!(allowed.previous & Bit(previous)) || !(expected & Bit(current))) return atFault(i);
    expected = allowed.next;
    previous = current;
  }
  return expected & Bit(IndexOf(kEnd)) ? nullptr : atFault(records.size() - 1);
}

void CheckSyntax(SyntaxRules rules, TokenList& list) {
  const EngineError* const error = FindSyntaxError(rules, list.Records());
  if (error) list.ReportError(*error);
}

}  // namespace vexa

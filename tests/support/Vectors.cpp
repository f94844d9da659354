#include "support/Vectors.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <fstream>
#include <limits>
#include <stdexcept>

namespace vexa::test {
namespace {

std::string Unescaped(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] != '\\' || i + 1 == field.size()) {
      text += field[i];
      continue;
    }
    const char escaped = field[++i];
    text += escaped == 't' ? '\t' : escaped == 'n' ? '\n' : escaped;
  }
  return text;
}

std::vector<std::string> Fields(std::string_view line) {
  std::vector<std::string> fields;
  for (std::size_t start = 0; start <= line.size();) {
    const std::size_t end = std::min(line.find('\t', start), line.size());
    fields.push_back(Unescaped(line.substr(start, end - start)));
    start = end + 1;
  }
  return fields;
}

/// Maps doubles to integers that are ordered as the doubles are.
std::int64_t Ordered(double value) {
  const auto bits = std::bit_cast<std::int64_t>(value);
  return bits < 0 ? std::numeric_limits<std::int64_t>::min() - bits : bits;
}

}  // namespace

std::string VectorPath(const std::string& name) {
  return VEXA_VECTORS "/" + name;
}

std::vector<std::vector<std::string>> ReadTable(const std::string& name) {
  std::ifstream file(VectorPath(name));
  if (!file) throw std::runtime_error("cannot open " + name);
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) rows.push_back(Fields(line));
  return rows;
}

std::wstring Wide(std::string_view utf8) {
  std::wstring wide;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i++]);
    const int more = lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : lead >= 0xc0 ? 1 : 0;
    unsigned code = more ? lead & (0x3fu >> more) : lead;
    for (int k = 0; k < more && i < utf8.size(); ++k) {
      code = code << 6 | (static_cast<unsigned char>(utf8[i++]) & 0x3fu);
    }
    wide += static_cast<wchar_t>(code);
  }
  return wide;
}

std::string Narrow(std::wstring_view text) {
  std::string utf8;
  for (const wchar_t c : text) {
    const auto code = static_cast<unsigned>(c);
    if (code < 0x80) {
      utf8 += static_cast<char>(code);
      continue;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    utf8 += static_cast<char>((0xff00u >> (more + 1) & 0xffu) | code >> 6 * more);
    for (int k = more - 1; k >= 0; --k) utf8 += static_cast<char>(0x80u | (code >> 6 * k & 0x3fu));
  }
  return utf8;
}

double HexDouble(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  double value = 0.0;
  if (text.starts_with("0x")) {
    text.remove_prefix(2);
    std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::hex);
  } else {
    std::from_chars(text.data(), text.data() + text.size(), value);
  }
  return negative ? -value : value;
}

int Integer(std::string_view text) {
  int value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

std::uint64_t UlpDistance(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) {
    return std::isnan(a) && std::isnan(b) ? 0 : std::numeric_limits<std::uint64_t>::max();
  }
  const std::int64_t x = Ordered(a);
  const std::int64_t y = Ordered(b);
  return x > y ? static_cast<std::uint64_t>(x) - static_cast<std::uint64_t>(y)
               : static_cast<std::uint64_t>(y) - static_cast<std::uint64_t>(x);
}

}  // namespace vexa::test

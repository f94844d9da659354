#include "guide/GuideSearch.h"

#include <algorithm>

namespace vexa {
namespace {

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char c) { return Lower(c); });
  return lower;
}

std::vector<std::string> WordsOf(std::string_view words) {
  std::vector<std::string> found;
  std::string word;
  for (const char c : words) {
    if (c != ' ') {
      word += Lower(c);
    } else if (!word.empty()) {
      found.push_back(std::move(word));
      word.clear();
    }
  }
  if (!word.empty()) found.push_back(std::move(word));
  return found;
}

/// The lines of a text that belong together: a heading, a table's row or a paragraph's line.
std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return lines;
}

bool IsHeading(std::string_view line) {
  return line.starts_with('#');
}

std::string HeadingText(std::string_view line) {
  return std::string(line.substr(std::min(line.find_first_not_of("# "), line.size())));
}

/// What is written in a line without the marks of tables, lists and code.
std::string Plain(std::string_view line) {
  std::string plain;
  for (const char c : line) {
    if (c == '|' || c == '`' || c == '*' || c == '#') continue;
    if (c == ' ' && (plain.empty() || plain.back() == ' ')) continue;
    plain += c;
  }
  return plain;
}

bool HoldsAll(const std::string& line, const std::vector<std::string>& words) {
  return std::ranges::all_of(
      words, [&](const std::string& word) { return line.find(word) != std::string::npos; });
}

}  // namespace

std::vector<GuideMatch> SearchGuide(std::span<const GuideText> pages, std::string_view words,
                                    std::size_t most) {
  std::vector<GuideMatch> matches;
  const std::vector<std::string> wanted = WordsOf(words);
  if (wanted.empty()) return matches;
  for (const GuideText& page : pages) {
    std::string heading = page.title;
    for (const std::string_view line : LinesOf(page.text)) {
      if (IsHeading(line)) heading = HeadingText(line);
      if (!HoldsAll(Lower(line), wanted)) continue;
      if (matches.size() == most) return matches;
      matches.push_back({page.name, heading, Plain(line)});
    }
  }
  return matches;
}

std::string MatchesPage(std::span<const GuideMatch> matches, std::string_view words) {
  if (matches.empty()) return "Nothing in the guide holds \"" + Plain(words) + "\".\n";
  std::string page;
  for (const GuideMatch& match : matches) {
    page += "- [" + Plain(match.heading) + "](" + match.page + ".md): " + match.line + "\n";
  }
  return page;
}

}  // namespace vexa

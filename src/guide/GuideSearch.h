#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexa {

/// The text of a page of the guide, as Markdown.
struct GuideText {
  std::string name;
  std::string title;
  std::string text;
};

/// A place where a word was found: the page, the heading above it and its paragraph or table row.
struct GuideMatch {
  std::string page;
  std::string heading;
  std::string line;
};

/// The lines that hold every word of `words` (separated by blanks; letter case of ASCII letters
/// does not count), page after page; at most `most` of them. No word: nothing.
std::vector<GuideMatch> SearchGuide(std::span<const GuideText> pages, std::string_view words,
                                    std::size_t most = 100);

/// The matches as a page of links, in Markdown.
std::string MatchesPage(std::span<const GuideMatch> matches, std::string_view words);

}  // namespace vexa

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The examples of the guide: blocks of lines "question = answer".
namespace vexa::test {

/// A block of examples: its kind, the settings behind it, and its lines.
struct Block {
  std::string page;
  std::string kind;
  std::vector<std::string> settings;
  std::vector<std::string> lines;
};

/// The blocks of a page; the blocks of one kind on all pages.
std::vector<Block> BlocksOf(const std::string& page);
std::vector<Block> BlocksOfKind(const std::string& kind);

/// The parts of a line "left = right"; the last "=" between blanks divides them.
std::pair<std::string, std::string> Sides(const std::string& line);

std::wstring Wide(const std::string& text);
std::string Bytes(std::wstring_view text);

}  // namespace vexa::test

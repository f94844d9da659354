#include "guide/GuideBlocks.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "files/Utf8.h"
#include "guide/GuidePages.h"

namespace vexa::test {

std::wstring Wide(const std::string& text) {
  return DecodeUtf8(text).value();
}

std::string Bytes(std::wstring_view text) {
  std::string bytes;
  for (const wchar_t c : text) AppendUtf8(bytes, c);
  return bytes;
}

std::vector<Block> BlocksOf(const std::string& page) {
  std::vector<Block> blocks;
  std::ifstream file(VEXA_GUIDE "/" + page + ".md");
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("```")) {
      if (inside) blocks.back().lines.push_back(line);
      continue;
    }
    inside = !inside;
    if (!inside) continue;
    std::istringstream head(line.substr(3));
    Block block{page, {}, {}, {}};
    head >> block.kind;
    block.settings.assign(std::istream_iterator<std::string>(head), {});
    blocks.push_back(std::move(block));
  }
  return blocks;
}

std::vector<Block> BlocksOfKind(const std::string& kind) {
  std::vector<Block> blocks;
  for (const GuidePage& page : GuidePages()) {
    for (Block& block : BlocksOf(std::string(page.name))) {
      if (block.kind == kind) blocks.push_back(std::move(block));
    }
  }
  return blocks;
}

std::pair<std::string, std::string> Sides(const std::string& line) {
  const std::size_t middle = line.rfind(" = ");
  if (middle == std::string::npos) return {line.substr(0, line.rfind(" =")), ""};
  return {line.substr(0, middle), line.substr(middle + 3)};
}

}  // namespace vexa::test

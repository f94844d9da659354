#include "stats/NistFiles.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace vexa::test {
namespace {

/// The lines of a data set's file behind its last heading, which is underlined in some files.
std::vector<std::string> DataLines(const std::string& name) {
  std::vector<std::string> lines;
  std::ifstream file(VEXA_NIST "/" + name);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("Data:")) {
      lines.clear();
    } else if (!line.starts_with("---") && !line.starts_with("#")) {
      lines.push_back(line);
    }
  }
  return lines;
}

std::vector<std::string> TextsOf(const std::string& line) {
  std::istringstream stream(line);
  return {std::istream_iterator<std::string>(stream), {}};
}

}  // namespace

Rows OneVarRows(const std::string& name) {
  Rows rows;
  for (const std::string& line : DataLines(name)) {
    for (const std::string& text : TextsOf(line)) rows.push_back({text, "1"});
  }
  return rows;
}

// A file has Y before X.
Rows TwoVarRows(const std::string& name) {
  Rows rows;
  for (const std::string& line : DataLines(name)) {
    const auto texts = TextsOf(line);
    if (texts.size() == 2) rows.push_back({texts[1], texts[0], "1"});
  }
  return rows;
}

}  // namespace vexa::test

#include "guide/KeysPage.h"

#include <algorithm>
#include <vector>

#include "engine/Functions.h"
#include "files/Utf8.h"

namespace vexa {
namespace {

/// A text as a cell of a table shows it literally.
std::string Cell(std::wstring_view text) {
  std::string cell;
  for (const wchar_t c : text) {
    if (std::wstring_view(L"|*_`<>\\[]#").find(c) != std::wstring_view::npos) cell += '\\';
    AppendUtf8(cell, c);
  }
  return cell;
}

std::string Row(const Key& key) {
  return "| " + Cell(key.caption) + " | " + Cell(key.inserts.text) + " | " + Cell(key.help) +
         " |\n";
}

}  // namespace

std::string KeysPage(std::span<const KeyGroup> groups) {
  std::string page = "# Keys and Functions\n";
  for (const KeyGroup& group : groups) {
    page +=
        "\n## " + std::string(group.heading) + "\n\n| key | writes | does |\n| --- | --- | --- |\n";
    std::vector<std::string> shown;
    for (const Key& key : group.keys) {
      std::string row = Row(key);
      if (std::ranges::find(shown, row) != shown.end()) continue;
      page += row;
      shown.push_back(std::move(row));
    }
  }
  page += "\n## Functions\n\n";
  for (const Keyword& keyword : kKeywords) page += "- " + Cell(keyword.name) + "\n";
  return page;
}

}  // namespace vexa

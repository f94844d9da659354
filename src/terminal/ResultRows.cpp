#include "terminal/ResultRows.h"

#include <algorithm>
#include <cmath>

#include "terminal/Json.h"
#include "terminal/Texts.h"

namespace vexa::terminal {
namespace {

void WriteJson(const std::wstring& title, const std::vector<ResultRow>& rows,
               const NumberModes& modes, Console& console) {
  Json json;
  json.Begin('{');
  json.Member(L"file", title);
  for (const ResultRow& row : rows) {
    json.Name(row.name);
    json.Begin('{');
    json.Member(L"value", row.value);
    json.Member(L"text", Formatted(row.value, modes));
    json.End('}');
  }
  json.End('}');
  console.out.Write(json.Take());
}

}  // namespace

void WriteResults(const std::wstring& title, const std::vector<ResultRow>& rows, const Given& given,
                  const NumberModes& modes, Console& console) {
  if (given.Has("json")) return WriteJson(title, rows, modes, console);
  std::size_t width = 0;
  for (const ResultRow& row : rows) width = std::max(width, row.name.size());
  for (const ResultRow& row : rows) {
    if (given.Has("tsv")) {
      console.out.Write(row.name + L"\t");
      console.out.Write(std::isfinite(row.value) ? ExactText(row.value) : "");
    } else {
      console.out.Write(row.name + std::wstring(width - row.name.size() + 2, L' '));
      console.out.Write(Formatted(row.value, modes));
    }
    console.out.Write("\n");
  }
}

}  // namespace vexa::terminal

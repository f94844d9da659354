#pragma once

#include <string>
#include <vector>

#include "terminal/Console.h"
#include "terminal/NumberOptions.h"

namespace vexa::terminal {

/// A named number of a list of results.
struct ResultRow {
  std::wstring name;
  double value;
};

/// Writes results about `title`, which may be empty: as a table with formatted numbers, or as JSON
/// or TSV with all digits. Numbers that are none are said so.
void WriteResults(const std::wstring& title, const std::vector<ResultRow>& rows, const Given& given,
                  const NumberModes& modes, Console& console);

}  // namespace vexa::terminal

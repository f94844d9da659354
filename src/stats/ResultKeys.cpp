#include "stats/ResultKeys.h"

#include <algorithm>

#include "stats/SummaryStatistics.h"

namespace vexa {
namespace {

template <double (*statistic)(const DataList&, std::size_t), std::size_t column>
double OfColumn(const ResultSource& source) {
  return statistic(source.list, column);
}

template <double Coefficients::*coefficient>
double Fitted(const ResultSource& source) {
  return source.regression.Fitted().*coefficient;
}

// clang-format off
constexpr ResultKey kResultKeys[] = {
    {L"\u03A3X",                 OfColumn<Sum, 0>},
    {L"\u03A3Y",                 OfColumn<Sum, 1>},
    {L"\u03A3X^2",               OfColumn<SumOfSquares, 0>},
    {L"\u03A3Y^2",               OfColumn<SumOfSquares, 1>},
    {L"Arithmetic Mean of X",    OfColumn<Mean, 0>},
    {L"Mean of X",               OfColumn<Mean, 0>},
    {L"Mean of Y",               OfColumn<Mean, 1>},
    {L"\u03C3(n-1) of X",        OfColumn<SampleDeviation, 0>},
    {L"\u03C3(n-1) of Y",        OfColumn<SampleDeviation, 1>},
    {L"\u03C3(n) of X",          OfColumn<PopulationDeviation, 0>},
    {L"\u03C3(n) of Y",          OfColumn<PopulationDeviation, 1>},
    {L"\u03A3XY", [](const ResultSource& s) { return SumOfProducts(s.list); }},

    {L"r",   [](const ResultSource& s) { return s.regression.Correlation(); },   true},
    {L"A",   Fitted<&Coefficients::a>,                                           true},
    {L"B",   Fitted<&Coefficients::b>,                                           true},
    {L"C",   Fitted<&Coefficients::c>,                                           true},
    {L"Y'",  [](const ResultSource& s) { return s.regression.PredictY(s.x); },   true, true},
    {L"X'",  [](const ResultSource& s) { return s.regression.PredictX(s.y); },   true, true},
    {L"X1'", [](const ResultSource& s) { return s.regression.FirstRoot(s.y); },  true, true},
    {L"X2'", [](const ResultSource& s) { return s.regression.SecondRoot(s.y); }, true, true},
};
// clang-format on

}  // namespace

const ResultKey* FindResultKey(std::wstring_view caption) {
  const auto key = std::ranges::find(kResultKeys, caption, &ResultKey::caption);
  return key == std::ranges::end(kResultKeys) ? nullptr : key;
}

}  // namespace vexa

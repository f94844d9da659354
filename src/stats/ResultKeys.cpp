#include "stats/ResultKeys.h"

#include <algorithm>

#include "stats/SummaryStatistics.h"

namespace vexa {
namespace {

template <double (*statistic)(const DataList&, std::size_t), std::size_t column>
double OfColumn(const ResultSource& source) {
  return statistic(source.list, column);
}

template <std::size_t column>
bool LosesDigits(const ResultSource& source) {
  return DeviationLosesDigits(source.list, column);
}

template <double Coefficients::*coefficient>
double Fitted(const ResultSource& source) {
  return source.regression.Fitted().*coefficient;
}

using enum ResultBasis;

// clang-format off
constexpr ResultKey kResultKeys[] = {
    {L"\u03A3X",                 OfColumn<Sum, 0>},
    {L"\u03A3Y",                 OfColumn<Sum, 1>},
    {L"\u03A3X^2",               OfColumn<SumOfSquares, 0>},
    {L"\u03A3Y^2",               OfColumn<SumOfSquares, 1>},
    {L"Arithmetic Mean of X",    OfColumn<Mean, 0>},
    {L"Mean of X",               OfColumn<Mean, 0>},
    {L"Mean of Y",               OfColumn<Mean, 1>},
    {L"\u03C3(n-1) of X",        OfColumn<SampleDeviation, 0>, Sums, LosesDigits<0>},
    {L"\u03C3(n-1) of Y",        OfColumn<SampleDeviation, 1>, Sums, LosesDigits<1>},
    {L"\u03C3(n) of X",          OfColumn<PopulationDeviation, 0>, Sums, LosesDigits<0>},
    {L"\u03C3(n) of Y",          OfColumn<PopulationDeviation, 1>, Sums, LosesDigits<1>},
    {L"\u03A3XY", [](const ResultSource& s) { return SumOfProducts(s.list); }},

    {L"r",   [](const ResultSource& s) { return s.regression.Correlation(); },   Correlation},
    {L"A",   Fitted<&Coefficients::a>,                                           Fit},
    {L"B",   Fitted<&Coefficients::b>,                                           Fit},
    {L"C",   Fitted<&Coefficients::c>,                                           Fit},
    {L"Y'",  [](const ResultSource& s) { return s.regression.PredictY(s.x); },   Prediction},
    {L"X'",  [](const ResultSource& s) { return s.regression.PredictX(s.y); },   Prediction},
    {L"X1'", [](const ResultSource& s) { return s.regression.FirstRoot(s.y); },  Prediction},
    {L"X2'", [](const ResultSource& s) { return s.regression.SecondRoot(s.y); }, Prediction},
};
// clang-format on

}  // namespace

const ResultKey* FindResultKey(std::wstring_view caption) {
  const auto key = std::ranges::find(kResultKeys, caption, &ResultKey::caption);
  return key == std::ranges::end(kResultKeys) ? nullptr : key;
}

bool Prepare(const ResultKey& key, const ResultSource& source, const ProgressWatcher& watcher) {
  return IsFitted(key.basis) ? source.regression.Fit(watcher) : source.list.AddUp(watcher);
}

ResultDoubt DoubtOf(const ResultKey& key, const ResultSource& source) {
  if (key.losesDigits && key.losesDigits(source)) return ResultDoubt::DigitsLost;
  if (IsFitted(key.basis) && source.regression.HalvesCounts()) return ResultDoubt::CountsHalved;
  return ResultDoubt::None;
}

}  // namespace vexa

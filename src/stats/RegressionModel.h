#pragma once

#include <array>
#include <string_view>

namespace vexa {

/// The curves that can be fitted, with their codes. What a code outside the enum does is said at
/// each operation.
enum class RegressionModel : int {
  Linear = 1,
  Power = 2,
  Inverse = 3,
  Logarithmic = 4,
  Exponential = 5,
  Quadratic = 6,
};

/// A model, its line in the menu and its name on the model's button.
struct RegressionModelName {
  RegressionModel model;
  std::wstring_view menuText;
  std::wstring_view caption;
};

/// The models in the order of the menu.
inline constexpr std::array<RegressionModelName, 6> kRegressionModels{{
    {RegressionModel::Linear, L"Linear : A*X+B", L"Lin"},
    {RegressionModel::Power, L"Power : A*X^B", L"Pow"},
    {RegressionModel::Inverse, L"Inverse : A/X+B", L"Inv"},
    {RegressionModel::Logarithmic, L"Logarithmic : A*ln(X)+B", L"Log"},
    {RegressionModel::Exponential, L"Exponential : A*exp(B*X)", L"Exp"},
    {RegressionModel::Quadratic, L"Quadratic : A*X^2+B*X+C", L"Quad"},
}};

constexpr bool IsRegressionModel(RegressionModel model) {
  return model >= RegressionModel::Linear && model <= RegressionModel::Quadratic;
}

}  // namespace vexa

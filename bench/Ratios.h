#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::bench {

/// Does what is measured, so many times.
using Work = std::function<void(std::size_t times)>;

/// No bound: a row that is only shown.
inline constexpr double kUnbounded = std::numeric_limits<double>::infinity();

/// What a benchmark program measures, a row of its table for each thing:
///
///     | what | ours | yardstick | ratio | bound | ok |
///
/// A thing and its yardstick are measured in turns, in many short repetitions, so that the
/// machine's drift hits both; the ratio is the median of the repetitions' ratios. Times are those
/// of the processor. A bound is missed when it is exceeded by more than the spread of the
/// repetitions, which is the width of their middle half.
class Ratios {
 public:
  /// `argument`: only things whose name contains this text are measured; null: all.
  explicit Ratios(const char* argument) : filter(argument ? argument : "") {}

  /// How long `ours` takes, against `yardstick`.
  void Ratio(const std::string& what, const Work& ours, const std::string& yardstickName,
             const Work& yardstick, double bound = kUnbounded);
  /// The same, of times in nanoseconds that were measured in turns.
  void Compare(const std::string& what, const std::vector<double>& ours,
               const std::string& yardstickName, const std::vector<double>& yardstick,
               double bound);
  /// How long `ours` takes, in nanoseconds.
  void Time(const std::string& what, const Work& ours, double bound = kUnbounded);
  /// A number that was found in another way. `spread`: how far it may be off.
  void Figure(const std::string& what, double value, const std::string& unit, double bound,
              double spread = 0.0);

  bool IsWanted(std::string_view what) const { return what.find(filter) != what.npos; }

  /// Prints the table. The program's exit status: 1 when a bound was missed.
  int Finish() const;

 private:
  struct Row {
    std::string what, ours, yardstick, ratio, bound;
    bool ok;
  };
  void Add(Row row);

  std::string filter;
  std::vector<Row> rows;
};

/// The value in the middle.
double Median(std::vector<double> values);

/// Keeps the optimizer from leaving out what makes `value`.
template <typename Value>
void Use(const Value& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

}  // namespace vexa::bench

// Ratios between benchmarks of one run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

/// Keeps the times of a run, prints them as usual, and prints ratios between them at the end.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;
  /// The time of one iteration in seconds; raises std::out_of_range for an unknown benchmark.
  double seconds(const std::string& name) const { return m_seconds.at(name); }
  /// True if the benchmark ran without an error.
  bool has(const std::string& name) const { return m_seconds.contains(name); }

 private:
  std::map<std::string, double> m_seconds;
};

/// `what` takes `numerator` / `divisor` times as long as the baseline; `target` is what we aim at.
/// Without a divisor it is a time, in seconds times `factor`.
struct Ratio {
  std::string what;
  std::string numerator;
  std::string divisor;
  double target;
  double factor = 1.0; ///< multiplies the quotient, to compare work of different size
  // What of the two times is not meant: what grew is compared with what grew.
  std::string numeratorBase = {};
  std::string divisorBase = {};
};

/// A figure that is no time: memory, for example.
struct Figure {
  std::string what;
  double value;
  double target;
};

/// Runs the registered benchmarks, once each with --quick, and prints the figures, and the ratios
/// of those that ran.
int run(int argc, char** argv, const std::vector<Ratio>& ratios,
        const std::vector<Figure>& figures = {});

/// Bytes that the process has allocated and not freed.
std::size_t allocatedBytes();

} // namespace bench

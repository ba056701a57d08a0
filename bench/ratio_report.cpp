#include "bench/ratio_report.h"

#include <malloc.h>

#include <cstdio>
#include <cstring>

namespace bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs)
    if (!run.error_occurred && run.run_type == Run::RT_Iteration) {
      const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
      const auto [at, isNew] = m_seconds.emplace(run.run_name.function_name, seconds);
      // The fastest repetition is the one that was disturbed least.
      if (!isNew && seconds < at->second) at->second = seconds;
    }
  ConsoleReporter::ReportRuns(runs);
}

namespace {

void printRow(const std::string& what, double value, double target) {
  std::printf("%-64s %8.2f   target %6.2f   %s\n", what.c_str(), value, target,
              value <= target ? "ok" : "MISSED");
}

/// How much longer the one takes than the other, if there is another.
double growth(const RatioReporter& reporter, const std::string& name, const std::string& base) {
  return reporter.seconds(name) - (base.empty() ? 0.0 : reporter.seconds(base));
}

} // namespace

int run(int argc, char** argv, const std::vector<Ratio>& ratios,
        const std::vector<Figure>& figures) {
  std::vector<char*> arguments;
  bool quick = false;
  for (int i = 0; i < argc; ++i) {
    if (std::strcmp(argv[i], "--quick") == 0)
      quick = true;
    else
      arguments.push_back(argv[i]);
  }
  char once[] = "--benchmark_min_time=0.0001";
  char thrice[] = "--benchmark_repetitions=3";
  arguments.push_back(quick ? once : thrice);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);

  std::printf("\n");
  for (const Ratio& r : ratios) {
    const bool isTime = r.divisor.empty();
    // A filter may have left out what others are compared with.
    if (!reporter.has(r.numerator) || (!isTime && !reporter.has(r.divisor))) continue;
    const double divisor = isTime ? 1.0 : growth(reporter, r.divisor, r.divisorBase);
    printRow(r.what, r.factor * growth(reporter, r.numerator, r.numeratorBase) / divisor, r.target);
  }
  for (const Figure& f : figures) printRow(f.what, f.value, f.target);
  return 0;
}

std::size_t allocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

} // namespace bench

// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

// Every measurement "x" has a twin "x/bare" that does the same work without us; what counts is the
// ratio of the two in one run, in time of the processor.
namespace {

class RatioReporter final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
  }

  void printRatios() const {
    for (const auto& [name, time] : m_times) {
      const auto bare = m_times.find(name + "/bare");
      if (bare != m_times.end())
        std::printf("ratio %-28s %6.2f\n", name.c_str(), time / bare->second);
    }
  }

 private:
  std::map<std::string, double> m_times;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  return 0;
}

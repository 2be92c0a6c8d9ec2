#include "Comparison.h"

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <map>
#include <string_view>
#include <vector>

namespace lorvane {
namespace {

constexpr int kRounds = 9;
constexpr const char* kOurs = "ours";
constexpr const char* kBare = "bare";

class MedianReporter : public benchmark::ConsoleReporter {
 public:
  MedianReporter() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration) {
        milliseconds_[run.run_name.function_name].push_back(run.GetAdjustedRealTime());
      }
    }
  }

  [[nodiscard]] double Median(const std::string& side) {
    std::vector<double>& times = milliseconds_[side];
    if (times.empty()) {
      return 0;
    }
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> milliseconds_;
};

void Register(const char* side, const std::function<double()>& run) {
  benchmark::RegisterBenchmark(side,
                               [run](benchmark::State& state) {
                                 for ([[maybe_unused]] auto iteration : state) {
                                   state.SetIterationTime(run());
                                 }
                               })
      ->UseManualTime()
      ->Iterations(1)
      ->Repetitions(kRounds)
      ->Unit(benchmark::kMillisecond);
}

double PeakMegabytes() {
  constexpr double kKilobytesInMegabyte = 1024;
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / kKilobytesInMegabyte;
}

int RunOnce(const Comparison& comparison, std::string_view side) {
  static_cast<void>(side == kOurs ? comparison.ours() : comparison.bare());
  std::cout << comparison.name << '\n';
  return 0;
}

}  // namespace

double SecondsOf(const std::function<void()>& operation) {
  const auto start = std::chrono::steady_clock::now();
  operation();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int RunComparison(int argc, char** argv, const Comparison& comparison) {
  if (argc == 3 && argv[1] == std::string_view("--once")) {
    return RunOnce(comparison, argv[2]);
  }
  // Turns spread what else the machine does over both sides.
  std::string inTurns = "--benchmark_enable_random_interleaving=true";
  std::vector<char*> arguments(argv, argv + argc);
  arguments.insert(arguments.begin() + 1, inTurns.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
    return 2;
  }
  Register(kOurs, comparison.ours);
  Register(kBare, comparison.bare);
  MedianReporter reporter;
  reporter.SetOutputStream(&std::cerr);
  reporter.SetErrorStream(&std::cerr);
  try {
    benchmark::RunSpecifiedBenchmarks(&reporter);
  } catch (const std::exception& error) {
    std::cerr << comparison.name << ": " << error.what() << '\n';
    return 1;
  }
  const double ours = reporter.Median(kOurs);
  const double bare = reporter.Median(kBare);
  std::cout << fmt::format("| {} | {:.1f} ms | {:.1f} ms | {:.2f} | {:.0f} MB |\n", comparison.name,
                           ours, bare, ours / bare, PeakMegabytes());
  return 0;
}

}  // namespace lorvane

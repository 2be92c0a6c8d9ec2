#pragma once

#include <functional>
#include <string>

namespace lorvane {

/// One thing that is measured: this program's way beside the bare engine's. Each side prepares what
/// it needs and gives the seconds of the part that counts.
struct Comparison {
  std::string name;
  std::function<double()> ours;
  std::function<double()> bare;
};

/// The seconds that an operation takes.
[[nodiscard]] double SecondsOf(const std::function<void()>& operation);

/// Measures both sides in turns and prints a row of a Markdown table to standard output: name,
/// medians of both sides, their ratio, and the most memory that the process ever held. Google
/// Benchmark's own report goes to standard error. With the arguments "--once ours" or "--once bare"
/// that side runs once and the name alone is printed, for a tool that counts instructions between
/// the beginning and the end of SecondsOf. The result is an exit status.
int RunComparison(int argc, char** argv, const Comparison& comparison);

}  // namespace lorvane

// Closing a year with 200,000 payments: backup, archive, empty history, compaction; and the bare
// engine's copy, delete and vacuum.

#include <filesystem>
#include <stdexcept>

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "shell/YearEndCommands.h"

namespace lorvane {
namespace {

constexpr int kHistoryRows = 200000;
constexpr int kEmployees = 1000;

double Ours(const CompanyFiles& files) {
  OpenCompany company(files.FreshCopy());
  bool closed = false;
  const double seconds = SecondsOf([&] { closed = RunYearEnd(company.Context(), "2026").closed; });
  if (!closed) {
    throw std::runtime_error("the year wasn't closed");
  }
  return seconds;
}

double Bare(const CompanyFiles& files) {
  const std::string path = files.FreshCopy();
  return SecondsOf([&] {
    std::filesystem::copy_file(path, path + ".archive");
    BareFile file(path);
    file.Run("DELETE FROM tblSubHistory");
    file.Run("DELETE FROM tblEmpHistory");
    file.Run("UPDATE tblEmployees SET AccWages = 0");
    file.Run("VACUUM");
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, kHistoryRows);
  return RunComparison(
      argc, argv,
      {"year end of 200,000 payments", [&] { return Ours(files); }, [&] { return Bare(files); }});
}

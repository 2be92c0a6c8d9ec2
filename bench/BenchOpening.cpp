// Opening a company, and the bare key derivation and first read of the same file.

#include "BareFile.h"
#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"

namespace lorvane {
namespace {

constexpr int kEmployees = 1000;

double Ours(const CompanyFiles& files) {
  const std::string path = files.FreshCopy();
  std::unique_ptr<OpenCompany> company;
  return SecondsOf([&] { company = std::make_unique<OpenCompany>(path); });
}

double Bare(const CompanyFiles& files) {
  const std::string path = files.FreshCopy();
  std::unique_ptr<BareFile> file;
  return SecondsOf([&] { file = std::make_unique<BareFile>(path); });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  const CompanyFiles files(kEmployees, 0);
  return RunComparison(
      argc, argv, {"opening a company", [&] { return Ours(files); }, [&] { return Bare(files); }});
}

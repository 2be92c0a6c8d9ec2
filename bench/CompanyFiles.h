#pragma once

#include <string>

namespace lorvane {

/// A company made for measuring: employees of industry A, each with a payment saved as a working
/// entry, and history rows of 2026 spread over them. It lies in a folder of its own that goes at
/// the end.
class CompanyFiles {
 public:
  CompanyFiles(int employees, int historyRows);
  CompanyFiles(const CompanyFiles&) = delete;
  CompanyFiles& operator=(const CompanyFiles&) = delete;
  ~CompanyFiles();

  /// The data file of a copy as it was made; the copy before it is gone.
  [[nodiscard]] std::string FreshCopy() const;

 private:
  [[nodiscard]] std::string Made() const { return folder_ + "/made"; }

  std::string folder_;
};

}  // namespace lorvane

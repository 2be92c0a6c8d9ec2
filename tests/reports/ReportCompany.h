#pragma once

#include <string>

#include "reports/ReportScreen.h"
#include "support/TestCompany.h"

namespace lorvane {

/// A company with something in every table that a report reads; no two of its amounts are the same.
class ReportCompany : public TestCompany {
 public:
  ReportCompany();

  /// Fills the scratch table of employees with February 2026, of one slot (1 to 6) or all (7).
  void FillEmployees(int industryItem);
  void FillSubContractors(int industryItem);
  void FillSummary();
  /// Loads the window and gives its report.
  [[nodiscard]] ReportDocument Show(ReportScreen& viewer);

 private:
  void AddPayments();
};

}  // namespace lorvane

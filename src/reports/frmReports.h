#pragma once

#include <cstdint>

#include "company/cCompany.h"
#include "company/cIndustry.h"
#include "employer/cOptions.h"
#include "reports/ReportScreen.h"

namespace lorvane {

/// The viewer of the employer's reports: SelectReportType 0 the year-end update, 1 the asset log, 2
/// the principals, 3 the expiries of clearance letters.
class frmReports : public ReportScreen {
 public:
  explicit frmReports(ScreenContext context);

  // What has changed since last year.
  bool EmployerName = false;
  bool TradeName = false;
  bool BusinessNumber = false;
  bool MainBusiness = false;
  bool Sic = false;
  bool ClaimContact = false;
  bool FinanContact = false;
  std::int16_t ReportingYear = 0;

  void Load() override;

 protected:
  Report MakeReport() override;

 private:
  void ReadSources();
  [[nodiscard]] std::string BusinessNumbers() const;
  [[nodiscard]] std::string SicCodes() const;
  void SetUpdateTexts(Report& report) const;
  void BlankMarks(Report& report) const;

  cOptions options_;
  cCompany company_;
  cIndustry industries_;
};

}  // namespace lorvane

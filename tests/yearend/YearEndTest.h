#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "basic/RuntimeError.h"
#include "screen/Session.h"
#include "support/ErrorOf.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"
#include "yearend/cYearEnd.h"

namespace lorvane {

/// A company whose year 2026 is to be closed: two employees with wages, dated and undated payments.
class YearEndCompany : public TestCompany {
 public:
  static constexpr const char* kOpen =
      "4|100.5|52300;7|0.25|48750#1|12/30/2024;2|3/5/2026;3|#11|6/1/2003;12|";
  static constexpr const char* kClosed = "4|0|52300;7|0|48750#3|#12|";

  YearEndCompany();

  /// What the closing is to change and what it is to leave, in one text.
  static std::string Payroll(EngineConnection& connection);
  std::string Payroll() { return Payroll(Connection()); }

  /// Names of the folder's files, sorted; empty when there is no such folder.
  [[nodiscard]] std::vector<std::string> Names(const std::string& subfolder = {}) const;
  [[nodiscard]] cYearEnd MakeYearEnd();
};

}  // namespace lorvane

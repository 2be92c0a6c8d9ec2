#pragma once

#include <deque>
#include <string_view>

#include "screen/Buttons.h"
#include "screen/Screen.h"

namespace lorvane {

/// Tells how a spreadsheet must be formatted to be imported.
class frmImportHlp : public Screen {
 public:
  explicit frmImportHlp(ScreenContext context);

  /// Which of the two frames is in front: that of the employees, or else the sub-contractors'.
  bool Employee = true;

  Frame fraExcelEmp{*this, "fraExcelEmp", "Employees"};
  /// lblExcelEmp_0 and on.
  std::deque<Label> lblExcelEmp;
  Frame fraExcelSubs{*this, "fraExcelSubs", "Sub-Contractors"};
  /// lblExcelSubs_0 and on.
  std::deque<Label> lblExcelSubs;
  Command cmdOK{*this, "cmdOK", "&OK"};

  void Load() override;
  bool SetProperty(std::string_view name, std::string_view value) override;
};

}  // namespace lorvane

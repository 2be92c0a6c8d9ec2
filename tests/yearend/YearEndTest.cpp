#include "yearend/YearEndTest.h"

#include <algorithm>
#include <filesystem>

namespace lorvane {

YearEndCompany::YearEndCompany() {
  Execute(
      "INSERT INTO tblEmployees (EmployeeId, LastName, AccWages, MaxContrib) VALUES (4, 'Archer', "
      "100.5, 52300)");
  Execute(
      "INSERT INTO tblEmployees (EmployeeId, LastName, AccWages, MaxContrib, Inactive) VALUES (7, "
      "'Burke', 0.25, 48750, 1)");
  Execute("INSERT INTO tblEmpHistory (TransactionId, DtCreate) VALUES (1, '12/30/2024')");
  Execute("INSERT INTO tblEmpHistory (TransactionId, DtCreate) VALUES (2, '3/5/2026')");
  Execute("INSERT INTO tblEmpHistory (TransactionId, DtCreate) VALUES (3, Null)");
  Execute("INSERT INTO tblSubHistory (TransactionId, DtCreate) VALUES (11, '6/1/2003')");
  Execute("INSERT INTO tblSubHistory (TransactionId, DtCreate) VALUES (12, Null)");
  SetIni("Assessment", "CurrentYear", "2026");
  SetIni("Assessment", "LastEntry", "3/17/2026");
}

std::string YearEndCompany::Payroll(EngineConnection& connection) {
  return RowsText(connection, "SELECT EmployeeId, AccWages, MaxContrib FROM tblEmployees") + "#" +
         RowsText(connection, "SELECT TransactionId, DtCreate FROM tblEmpHistory") + "#" +
         RowsText(connection, "SELECT TransactionId, DtCreate FROM tblSubHistory");
}

std::vector<std::string> YearEndCompany::Names(const std::string& subfolder) const {
  std::vector<std::string> names;
  std::error_code ignored;
  for (const auto& entry :
       std::filesystem::directory_iterator(Folder() + "/" + subfolder, ignored)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

cYearEnd YearEndCompany::MakeYearEnd() {
  cYearEnd yearEnd(Context());
  yearEnd.Year = "2026";
  yearEnd.Destination = Folder() + "/";
  return yearEnd;
}

}  // namespace lorvane

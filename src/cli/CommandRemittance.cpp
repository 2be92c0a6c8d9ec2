#include <filesystem>
#include <iostream>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Commands.h"
#include "cli/PaymentWindow.h"
#include "company/cCompany.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceReport.h"

namespace lorvane {
namespace {

DateTime DateOfOption(const std::string& text) {
  const std::optional<DateTime> date = ParseDate(text);
  if (!date) {
    throw CommandFailure("'" + text + "' is no date.");
  }
  return date->Day();
}

// Raises CommandFailure for a file that the list can't be written to. The result is its ending.
std::string CheckOutput(const std::string& path) {
  if (path.empty()) {
    return {};
  }
  std::string extension = ToLower(std::filesystem::path(path).extension().string());
  if (extension != ".txt" && extension != ".csv") {
    throw CommandFailure("'" + path + "' should end in .txt or .csv.");
  }
  std::error_code ignored;
  if (!std::filesystem::is_directory(std::filesystem::absolute(path).parent_path(), ignored)) {
    throw CommandFailure("'" + path + "' can't be written: there is no such folder.");
  }
  return extension;
}

struct Period {
  DateTime start;
  DateTime end;
};

bool Fill(RemittanceFill& fill, const RemittanceOptions& options, const Period& period,
          int industryItem) {
  if (options.payees.employees) {
    fill.ClearEmployeeRemittance();
    return fill.FillEmployeeRemittance(period.start, period.end, industryItem);
  }
  bool cleared = false;
  fill.ClearSubContractorRemittance(cleared);
  return fill.FillSubContractorRemittance(period.start, period.end, industryItem);
}

void AddHeadings(CommandProgram& program, RemittanceFill& fill, const RemittanceOptions& options,
                 const Period& period, int industryItem, ReportDocument& report) {
  cCompany company;
  company.SetDataConnection(program.GetSession().gDataConn.get());
  company.OpenRecordset();
  RemittanceHeadings headings;
  const bool all = industryItem == RemittanceFill::kAllIndustries;
  if (all) {
    fill.AllIdentifiers(headings);
  } else {
    fill.IndustryHeading(industryItem, headings);
  }
  report.title = options.payees.employees ? "Employee Remittance Calculation"
                                          : "Sub-Contractor Remittance Calculation";
  report.headings = {
      company.LegalName,
      "Business No.: " + company.BusNum + company.PrgIdentifier + headings.Identifier,
      "From: " + LongDate(period.start) + " To: " + LongDate(period.end),
      all ? "For All Industries" : "For: " + headings.IndustryDesc};
}

}  // namespace

int RunRemittance(const CommandOptions& options, const RemittanceOptions& remittance) {
  const std::string extension = CheckOutput(remittance.output);
  const Period period{DateOfOption(remittance.from), DateOfOption(remittance.to)};
  const int industryItem = remittance.payees.industry.empty()
                               ? RemittanceFill::kAllIndustries
                               : NumberOf(SlotOfOption(remittance.payees.industry));
  CommandProgram program(options);
  program.OpenCompany();
  RemittanceFill fill(program.Context());
  if (!Fill(fill, remittance, period, industryItem)) {
    program.RaiseEngineError();
    program.Services().MsgBox(
        "There is nothing to view for the selected date range.\r\n\r\n"
        "Please select a new starting and ending date.",
        box::kInformation, "No Records");
    return 1;
  }
  ReportDocument report =
      RemittanceReport(*program.GetSession().gDataConn, remittance.payees.employees
                                                            ? RemittancePayees::kEmployees
                                                            : RemittancePayees::kSubContractors);
  AddHeadings(program, fill, remittance, period, industryItem, report);
  const std::string text = extension == ".csv" ? ReportAsCsv(report) : ReportAsText(report);
  // Whether the list reaches its place or not, the scratch table is empty again.
  program.Connection().Execute(remittance.payees.employees ? "DELETE * FROM tblEmpRemittance"
                                                           : "DELETE * FROM tblSubRemittance");
  program.RaiseEngineError();
  if (remittance.output.empty()) {
    std::cout << text;
  } else {
    program.GetSession().files.Write(remittance.output, text);
    std::cout << "Wrote " << remittance.output << ".\n";
  }
  return 0;
}

}  // namespace lorvane

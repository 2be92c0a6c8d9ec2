#include <initializer_list>

#include "basic/Text.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PaymentWindow.h"
#include "cli/ReportOutput.h"
#include "reports/CompanyHeading.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"

namespace lorvane {
namespace {

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

// The report as its window makes it; closing the window empties the scratch table.
template <typename Viewer>
ReportDocument MakeReport(CommandProgram& program, RemittanceFill& fill, const Period& period,
                          int industryItem) {
  RemittanceHeadings headings;
  const bool all = industryItem == RemittanceFill::kAllIndustries;
  if (all) {
    fill.AllIdentifiers(headings);
  } else {
    fill.IndustryHeading(industryItem, headings);
  }
  const CompanyHeading company = CompanyOf(program);
  Viewer viewer(program.Context());
  viewer.SelectReportType = all ? 1 : 0;
  viewer.StartDate = LongDate(period.start);
  viewer.EndDate = LongDate(period.end);
  viewer.Identifier = company.businessNumber + headings.Identifier;
  viewer.IndustryDesc = headings.IndustryDesc;
  viewer.CompanyName = Trim(company.name + " " + company.address);
  return ReportOf(program, viewer);
}

}  // namespace

int RunRemittance(const CommandOptions& options, const RemittanceOptions& remittance) {
  const Period period{DayOfArgument(remittance.from), DayOfArgument(remittance.to)};
  const int industryItem = remittance.payees.industry.empty()
                               ? RemittanceFill::kAllIndustries
                               : NumberOf(SlotOfOption(remittance.payees.industry));
  CommandProgram program(options);
  CheckOutput(program, remittance.output);
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
  WriteOutput(program,
              remittance.payees.employees
                  ? MakeReport<frmrptEmp>(program, fill, period, industryItem)
                  : MakeReport<frmRptSub>(program, fill, period, industryItem),
              remittance.output);
  return 0;
}

}  // namespace lorvane

#include <algorithm>
#include <array>
#include <string_view>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "cli/Commands.h"
#include "cli/ReportOutput.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"
#include "reports/frmRemittanceCalc.h"
#include "reports/frmReports.h"

namespace lorvane {
namespace {

constexpr int kFirstYear = 2000;
constexpr int kLastYear = 2100;

std::int16_t YearOfOption(const std::string& text) {
  const std::optional<double> year = ParseNumber(text);
  if (!year || *year < kFirstYear || *year > kLastYear) {
    throw CommandFailure("'" + text + "' is no year from 2000 to 2100.");
  }
  return ToInteger(*year);
}

// The company's current year. Raises CommandFailure when none was ever chosen.
std::int16_t CurrentYear(CommandProgram& program) {
  const std::string stored = program.GetSession().Ini().KeyGet("Assessment", "CurrentYear", "");
  const std::optional<double> year = ParseNumber(stored);
  if (!year || *year < kFirstYear || *year > kLastYear) {
    throw CommandFailure("The company has no current year yet: name one with --year.");
  }
  return ToInteger(*year);
}

int RunSummary(CommandProgram& program, const ReportOptions& report, std::int16_t reportType) {
  const std::int16_t year = report.year.empty() ? CurrentYear(program) : YearOfOption(report.year);
  RemittanceFill fill(program.Context());
  bool cleared = false;
  fill.ClearSubContractorRemittance(cleared);
  if (!fill.FillSubContractorSummary()) {
    program.RaiseEngineError();
    program.Services().MsgBox("There is nothing to view.", box::kExclamation,
                              "Annual Subcontractor Report");
    return 1;
  }
  RemittanceHeadings headings;
  fill.AllIdentifiers(headings);
  const CompanyHeading company = CompanyOf(program);
  frmSubQtrSumm viewer(program.Context());
  viewer.SelectReportType = reportType;
  viewer.Identifier = company.businessNumber + headings.Identifier;
  SetUpSummary(viewer, company, year);
  WriteOutput(program, ReportOf(program, viewer), report.output);
  return 0;
}

int RunEmployer(CommandProgram& program, const ReportOptions& report, std::int16_t reportType) {
  constexpr std::int16_t kClearance = 3;
  frmReports viewer(program.Context());
  viewer.SelectReportType = reportType;
  if (!report.year.empty()) {
    viewer.ReportingYear = YearOfOption(report.year);
  } else if (reportType != kClearance) {
    viewer.ReportingYear = static_cast<std::int16_t>(ReportedYear(CurrentYear(program)));
  }
  WriteOutput(program, ReportOf(program, viewer), report.output);
  return 0;
}

struct ReportCommand {
  std::string_view name;
  int (*run)(CommandProgram&, const ReportOptions&, std::int16_t reportType);
  std::int16_t reportType;
};

constexpr std::array kReports{
    ReportCommand{"annual", RunSummary, 0},      ReportCommand{"quarterly", RunSummary, 1},
    ReportCommand{"update", RunEmployer, 0},     ReportCommand{"assets", RunEmployer, 1},
    ReportCommand{"principals", RunEmployer, 2}, ReportCommand{"clearance", RunEmployer, 3}};

}  // namespace

std::vector<std::string> ReportNames() {
  std::vector<std::string> names;
  names.reserve(kReports.size());
  for (const ReportCommand& command : kReports) {
    names.emplace_back(command.name);
  }
  return names;
}

int RunReport(const CommandOptions& options, const ReportOptions& report) {
  const auto* found =
      std::find_if(kReports.begin(), kReports.end(),
                   [&](const ReportCommand& command) { return command.name == report.name; });
  if (found == kReports.end()) {
    throw CommandFailure("There is no report '" + report.name + "'.");
  }
  CommandProgram program(options);
  CheckOutput(program, report.output);
  program.OpenCompany();
  return found->run(program, report, found->reportType);
}

}  // namespace lorvane

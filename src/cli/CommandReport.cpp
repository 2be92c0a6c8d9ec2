#include <algorithm>
#include <array>
#include <string_view>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/ReportOutput.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"
#include "reports/frmRemittanceCalc.h"
#include "reports/frmReports.h"

namespace lorvane {
namespace {

constexpr YearRange kReportingYears{2000, 2100};

std::int16_t YearOfOption(const std::string& text) {
  return static_cast<std::int16_t>(YearOfArgument(text, kReportingYears));
}

// The company's current year. Raises CommandFailure when none was ever chosen.
std::int16_t CurrentYear(CommandProgram& program) {
  const std::string stored = program.GetSession().Ini().KeyGet("Assessment", "CurrentYear", "");
  const std::optional<double> year = ParseNumber(stored);
  if (!year || *year < kReportingYears.first || *year > kReportingYears.last) {
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

// A window tells in three boxes what a company has not filled in yet.
void TellWhatIsMissing(CommandProgram& program) {
  CommandLineServices& services = program.Services();
  services.OnBox("Error", [](const std::string& text) {
    if (text != NumberAndDescription(RuntimeError(error_number::kSubscriptOutOfRange))) {
      return false;
    }
    CommandProgram::Warn(
        "The employer update options were never saved, or lines of them are missing in "
        "LorvaneConfig.ini: the report has none of these.");
    return true;
  });
  services.OnBox("Options", [](const std::string&) { return true; });
  services.OnBox("Company", [&](const std::string&) {
    if (!program.Connection().Errors().empty()) {
      return false;
    }
    CommandProgram::Warn("The company's information was never filled in.");
    return true;
  });
}

int RunEmployer(CommandProgram& program, const ReportOptions& report, std::int16_t reportType) {
  constexpr std::int16_t kClearance = 3;
  TellWhatIsMissing(program);
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
  if (!report.year.empty()) {
    static_cast<void>(YearOfOption(report.year));
  }
  CommandProgram program(options);
  CheckOutput(program, report.output);
  program.OpenCompany();
  return found->run(program, report, found->reportType);
}

}  // namespace lorvane

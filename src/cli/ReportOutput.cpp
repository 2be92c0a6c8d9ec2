#include "cli/ReportOutput.h"

#include <filesystem>
#include <iostream>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/Arguments.h"
#include "reports/ReportExports.h"
#include "reports/ReportFiles.h"

namespace lorvane {

void CheckOutput(CommandProgram& program, const std::string& path) {
  if (path.empty()) {
    return;
  }
  try {
    static_cast<void>(ReportFileKindOf(path, program.Services().Painter()));
  } catch (const RuntimeError& error) {
    throw UsageFailure(error.Description());
  }
  std::error_code ignored;
  if (!std::filesystem::is_directory(GetPathPart(AbsolutePath(path)), ignored)) {
    throw CommandFailure("'" + path + "' can't be written: there is no such folder.");
  }
}

CompanyHeading CompanyOf(CommandProgram& program) {
  try {
    return ReadCompanyHeading(program.Connection());
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kNoCurrentRow) {
      throw;
    }
    return {};
  }
}

ReportDocument ReportOf(CommandProgram& program, ReportScreen& viewer) {
  ReportDocument report;
  program.Services().OnModal(viewer.Name(),
                             [&](Screen& /*screen*/) { report = viewer.CRViewer1.Report(); });
  program.Services().ShowModal(viewer);
  program.RaiseEngineError();
  if (report.sections.empty()) {
    throw CommandFailure("The report can't be made.");
  }
  return report;
}

void WriteOutput(CommandProgram& program, const ReportDocument& report, const std::string& path) {
  if (path.empty()) {
    std::cout << ReportAsText(report);
    return;
  }
  WriteReport(report, path, program.GetSession().files, program.Services().Painter());
  std::cout << "Wrote " << path << ".\n";
}

}  // namespace lorvane

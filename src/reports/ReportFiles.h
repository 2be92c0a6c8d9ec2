#pragma once

#include <string>
#include <vector>

#include "reports/ReportDocument.h"

namespace lorvane {

class Files;
class ReportPainter;

/// A kind of file that a report can be written to.
struct ReportFileKind {
  /// With its point, in small letters: ".csv".
  const char* ending;
  const char* description;
  /// Only for kinds that are painted is `painter` looked at.
  std::string (*make)(const ReportDocument& report, ReportPainter* painter);
  bool painted;
};

/// The kinds that can be made; those that are painted need a painter, which may be null.
[[nodiscard]] std::vector<ReportFileKind> ReportFileKinds(const ReportPainter* painter);

/// The kind that the path's ending names, without regard to case. Raises 52 with a sentence that
/// lists the endings when there is none.
[[nodiscard]] ReportFileKind ReportFileKindOf(const std::string& path,
                                              const ReportPainter* painter);

/// Writes the report to a file of the kind that its ending names; a file of that name is replaced.
/// Raises what stops it; then the file is as it was.
void WriteReport(const ReportDocument& report, const std::string& path, Files& files,
                 ReportPainter* painter);

/// What a file dialog offers: "CSV table (*.csv)|*.csv|...".
[[nodiscard]] std::string ReportFileFilter(const ReportPainter* painter);

}  // namespace lorvane

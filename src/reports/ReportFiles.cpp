#include "reports/ReportFiles.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/Files.h"
#include "reports/ReportExports.h"
#include "reports/ReportPainter.h"

namespace lorvane {
namespace {

constexpr std::int32_t kBadFileName = 52;

std::string MakePdf(const ReportDocument& report, ReportPainter* painter) {
  return painter->Pdf(report);
}

std::string MakeXlsx(const ReportDocument& report, ReportPainter* /*painter*/) {
  return ReportAsXlsx(report);
}

std::string MakeCsv(const ReportDocument& report, ReportPainter* /*painter*/) {
  return ReportAsCsv(report);
}

std::string MakeText(const ReportDocument& report, ReportPainter* /*painter*/) {
  return ReportAsText(report);
}

constexpr std::array kKinds{ReportFileKind{".pdf", "PDF document", MakePdf, true},
                            ReportFileKind{".xlsx", "Excel workbook", MakeXlsx, false},
                            ReportFileKind{".csv", "CSV table", MakeCsv, false},
                            ReportFileKind{".txt", "Text", MakeText, false}};

}  // namespace

std::vector<ReportFileKind> ReportFileKinds(const ReportPainter* painter) {
  std::vector<ReportFileKind> kinds;
  std::copy_if(kKinds.begin(), kKinds.end(), std::back_inserter(kinds),
               [&](const ReportFileKind& kind) { return painter != nullptr || !kind.painted; });
  return kinds;
}

ReportFileKind ReportFileKindOf(const std::string& path, const ReportPainter* painter) {
  const std::string ending = std::filesystem::path(path).extension().string();
  const std::vector<ReportFileKind> kinds = ReportFileKinds(painter);
  std::string endings;
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (EqualsNoCase(kinds[i].ending, ending)) {
      return kinds[i];
    }
    endings += (i == 0 ? "" : i + 1 < kinds.size() ? ", " : " or ") + std::string(kinds[i].ending);
  }
  throw RuntimeError(kBadFileName, "'" + path + "' should end in " + endings + ".");
}

void WriteReport(const ReportDocument& report, const std::string& path, Files& files,
                 ReportPainter* painter) {
  files.Write(path, ReportFileKindOf(path, painter).make(report, painter));
}

std::string ReportFileFilter(const ReportPainter* painter) {
  std::string filter;
  for (const ReportFileKind& kind : ReportFileKinds(painter)) {
    const std::string pattern = std::string("*") + kind.ending;
    filter += filter.empty() ? "" : "|";
    filter += kind.description;
    filter += " (" + pattern + ")|";
    filter += pattern;
  }
  return filter;
}

}  // namespace lorvane

#include "import/ImportReport.h"

#include "reports/ReportExports.h"

namespace lorvane {

std::string Counted(std::size_t count, std::string_view one, std::string_view more) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : more);
}

std::string DescribeOutcome(const ImportOutcome& outcome) {
  std::string sentences = outcome.unreadable;
  if (outcome.onFile > 0) {
    sentences += Counted(static_cast<std::size_t>(outcome.onFile), "row was", "rows were") +
                 " skipped: on file already.";
  }
  if (!outcome.refused.empty()) {
    sentences += (sentences.empty() ? "" : " ") +
                 Counted(outcome.refused.size(), "row was", "rows were") + " not taken in.";
  }
  return sentences;
}

std::string RefusedReport(const std::vector<RefusedRow>& refused) {
  std::string report = CsvLine({"Row", "Reason"}) + "\r\n";
  for (const RefusedRow& row : refused) {
    report += CsvLine({std::to_string(row.row), row.reason}) + "\r\n";
  }
  return report;
}

}  // namespace lorvane

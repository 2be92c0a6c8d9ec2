#include "reports/ReportPainter.h"

#include "basic/RuntimeError.h"

namespace lorvane {

void ReportPainter::ChoosePrinter() { RaiseNoPrinter(); }

void ReportPainter::Print(const ReportDocument& /*report*/) { RaiseNoPrinter(); }

void ReportPainter::TellProgress(std::size_t page, std::size_t pages) const {
  if (OnPage) {
    OnPage(page, pages);
  }
}

void RaiseNoPrinter() {
  throw RuntimeError(ReportPainter::kPrinterError, "There is no printer here.");
}

}  // namespace lorvane

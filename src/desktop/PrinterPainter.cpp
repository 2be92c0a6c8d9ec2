#include "desktop/PrinterPainter.h"

#include <QPainter>
#include <QPrintDialog>
#include <algorithm>
#include <utility>

#include "basic/RuntimeError.h"
#include "desktop/binder/QtText.h"
#include "print/PageFonts.h"
#include "print/PagePainter.h"

namespace lorvane {

PrinterPainter::PrinterPainter(std::function<QWidget*()> front) : front_(std::move(front)) {}

PrinterPainter::~PrinterPainter() = default;

void PrinterPainter::ChoosePrinter() {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setPageSize(QPageSize(QPageSize::Letter));
  QPrintDialog dialog(printer.get(), front_());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  if (dialog.exec() != QDialog::Accepted) {
    throw RuntimeError(error_number::kCancelSelected);
  }
  printer_ = std::move(printer);
}

void PrinterPainter::Print(const ReportDocument& report) {
  if (printer_ == nullptr) {
    RaiseNoPrinter();
  }
  const PagedReport paged = LayOut(report, Fonts());
  const PagePainter pages(paged, Fonts());
  printer_->setFullPage(true);
  printer_->setPageOrientation(report.orientation == PageOrientation::kPortrait
                                   ? QPageLayout::Portrait
                                   : QPageLayout::Landscape);
  printer_->setDocName(ToQt(report.title));
  QPainter painter;
  if (!painter.begin(printer_.get())) {
    throw RuntimeError(kPrinterError, "The printer can't be reached.");
  }
  // A page of other paper than letter shows the whole of it.
  const QRectF paper = printer_->pageLayout().fullRectPixels(printer_->resolution());
  const double scale = std::min(paper.width() / paged.width, paper.height() / paged.height) /
                       PageFonts::kUnitsPerPoint;
  painter.scale(scale, scale);
  const auto count = static_cast<int>(paged.pages.size());
  const int first = std::max(1, printer_->fromPage());
  const int last = printer_->toPage() == 0 ? count : std::min(count, printer_->toPage());
  for (int page = first; page <= last; ++page) {
    if (page > first && !printer_->newPage()) {
      throw RuntimeError(kPrinterError, "The printer takes no more pages.");
    }
    pages.Paint(painter, static_cast<std::size_t>(page - 1));
    TellProgress(static_cast<std::size_t>(page - first + 1),
                 static_cast<std::size_t>(last - first + 1));
  }
}

}  // namespace lorvane

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
  // Counted from 1; 0 stands for all pages.
  const auto from = static_cast<std::size_t>(printer_->fromPage());
  const auto to = static_cast<std::size_t>(printer_->toPage());
  const std::size_t first = std::max<std::size_t>(1, from);
  const std::size_t last = to == 0 ? paged.pages.size() : std::min(paged.pages.size(), to);
  for (std::size_t page = first; page <= last; ++page) {
    if (page > first && !printer_->newPage()) {
      throw RuntimeError(kPrinterError, "The printer takes no more pages.");
    }
    pages.Paint(painter, page - 1);
    TellProgress(page - first + 1, last - first + 1);
  }
}

}  // namespace lorvane

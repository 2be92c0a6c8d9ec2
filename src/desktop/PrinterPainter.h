#pragma once

#include <QPrinter>
#include <functional>
#include <memory>

#include "print/PdfPainter.h"

class QWidget;

namespace lorvane {

/// Paints reports on the desktop's printers, and as PDF.
class PrinterPainter : public PdfPainter {
 public:
  /// `front` gives the window over which the printer is chosen; it may give null.
  explicit PrinterPainter(std::function<QWidget*()> front);
  ~PrinterPainter() override;

  void ChoosePrinter() override;
  void Print(const ReportDocument& report) override;

 private:
  std::function<QWidget*()> front_;
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace lorvane

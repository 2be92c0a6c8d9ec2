#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "reports/PageLayout.h"
#include "reports/ReportDocument.h"

namespace lorvane {

/// What has fonts and printers: paints the pages of a report. Fronts bring it along.
class ReportPainter {
 public:
  /// The number of an error of printing.
  static constexpr std::int32_t kPrinterError = 482;

  ReportPainter() = default;
  ReportPainter(const ReportPainter&) = delete;
  ReportPainter& operator=(const ReportPainter&) = delete;
  virtual ~ReportPainter() = default;

  /// Called with the number of pages painted so far and of all.
  std::function<void(std::size_t page, std::size_t pages)> OnPage;

  /// The measures of its fonts, for the layout that it paints.
  [[nodiscard]] virtual const TextMeasure& Measure() const = 0;
  /// The bytes of a PDF file.
  [[nodiscard]] virtual std::string Pdf(const ReportDocument& report) = 0;
  /// Lets the user choose a printer. Raises 32755 when the user cancels, and 482 when there is no
  /// way to print.
  virtual void ChoosePrinter();
  /// Prints on the printer chosen last, asking nothing. Raises 482 when it can't be done.
  virtual void Print(const ReportDocument& report);

 protected:
  void TellProgress(std::size_t page, std::size_t pages) const;
};

/// Raises 482: there is no printer.
[[noreturn]] void RaiseNoPrinter();

}  // namespace lorvane

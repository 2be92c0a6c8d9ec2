#pragma once

#include <memory>
#include <string>

#include "reports/ReportPainter.h"

namespace lorvane {

class PageFonts;

/// Writes reports as PDF, with their fonts in the file. Needs a QGuiApplication by the time that it
/// is first used.
class PdfPainter : public ReportPainter {
 public:
  PdfPainter();
  ~PdfPainter() override;

  [[nodiscard]] const TextMeasure& Measure() const override;
  [[nodiscard]] std::string Pdf(const ReportDocument& report) override;

  [[nodiscard]] const PageFonts& Fonts() const;

 private:
  mutable std::unique_ptr<PageFonts> fonts_;
};

}  // namespace lorvane

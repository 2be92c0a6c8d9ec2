#include "print/OffscreenPainter.h"

#include <QGuiApplication>
#include <array>
#include <iostream>

#include "print/PdfPainter.h"

namespace lorvane {
namespace {

class OffscreenPainter : public ReportPainter {
 public:
  [[nodiscard]] const TextMeasure& Measure() const override { return Painter().Measure(); }

  [[nodiscard]] std::string Pdf(const ReportDocument& report) override {
    Painter().OnPage = OnPage;
    return Painter().Pdf(report);
  }

 private:
  [[nodiscard]] PdfPainter& Painter() const {
    if (application_ == nullptr) {
      // What the toolkit notes about displays that aren't there is of no use to anybody.
      qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) {
          std::cerr << "lorvane-cli: " << text.toStdString() << std::endl;
        }
      });
      application_ = std::make_unique<QGuiApplication>(count_, words_.data());
    }
    return painter_;
  }

  mutable std::array<char, 12> name_{"lorvane-cli"};
  mutable std::array<char, 10> option_{"-platform"};
  mutable std::array<char, 10> platform_{"offscreen"};
  /// The application takes out what it understands and keeps the rest for its lifetime.
  mutable std::array<char*, 4> words_{name_.data(), option_.data(), platform_.data(), nullptr};
  mutable int count_ = static_cast<int>(words_.size()) - 1;
  mutable std::unique_ptr<QGuiApplication> application_;
  mutable PdfPainter painter_;
};

}  // namespace

std::unique_ptr<ReportPainter> MakeOffscreenPainter() {
  return std::make_unique<OffscreenPainter>();
}

}  // namespace lorvane

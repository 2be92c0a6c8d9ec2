#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "reports/Report.h"
#include "reports/ReportViewer.h"
#include "reports/ScreenProperties.h"
#include "screen/Screen.h"

namespace lorvane {

class ReportPainter;

/// A window that shows one report. Its properties are set before it is loaded and hold for one
/// showing.
class ReportScreen : public Screen {
 public:
  /// Which of the window's designs it shows.
  std::int16_t SelectReportType = 0;

  ReportViewer CRViewer1{*this, "CRViewer1"};

  /// "report.NAME" is a named text of the report shown.
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;
  bool SetProperty(std::string_view name, std::string_view value) override;

 protected:
  ReportScreen(ScreenContext context, std::string name, std::string caption);

  /// The design of the type shown, of those given; raises 9 when there is none.
  [[nodiscard]] const ReportDesign& DesignOfType(
      std::initializer_list<const ReportDesign& (*)()> designs) const;

  /// The report with its texts set, not yet filled.
  virtual Report MakeReport() = 0;
  /// Makes the report, points its tables at the session's file, fills it and shows it. What goes
  /// wrong is told.
  void ShowReport();
  /// Lets the user choose a printer and prints. Cancelling ends it silently, anything else is told.
  void PrintReport();

  ScreenProperties properties_;

 private:
  void ExportReport();
  /// Asks when the file is there.
  [[nodiscard]] bool MayWrite(const std::string& path) const;
  /// Runs long work under a busy pointer; how far the painter has come is shown. What goes wrong is
  /// told, but for the user's cancelling.
  void WithPainter(const std::function<void(ReportPainter*)>& work);
};

}  // namespace lorvane

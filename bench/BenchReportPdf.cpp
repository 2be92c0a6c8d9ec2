// A remittance report of 30,000 payments, filled, laid out and written as PDF, and the bare paint
// engine painting the same texts.

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <stdexcept>

#include "CompanyFiles.h"
#include "Comparison.h"
#include "OpenCompany.h"
#include "print/PageFonts.h"
#include "print/PdfPainter.h"
#include "reports/RemittanceFill.h"
#include "reports/RemittanceViewer.h"

namespace lorvane {
namespace {

constexpr int kHistoryRows = 30000;
constexpr int kEmployees = 1000;

double Ours(const CompanyFiles& files, PagedReport& pages) {
  OpenCompany company(files.FreshCopy());
  PdfPainter painter;
  company.Services().SetPainter(&painter);
  frmrptEmp viewer(company.Context());
  std::string pdf;
  const double seconds = SecondsOf([&] {
    RemittanceFill fill(company.Context());
    if (!fill.FillEmployeeRemittance({2026, 1, 1}, {2026, 12, 31}, 1)) {
      throw std::runtime_error("the remittance wasn't filled");
    }
    viewer.Load();
    pdf = painter.Pdf(viewer.CRViewer1.Report());
  });
  if (!pdf.starts_with("%PDF")) {
    throw std::runtime_error("the report wasn't written");
  }
  pages = viewer.CRViewer1.Pages();
  return seconds;
}

// Paints what ours has laid out.
double Bare(const CompanyFiles& files, PagedReport& pages) {
  constexpr int kResolution = 72;
  if (pages.pages.empty()) {
    Ours(files, pages);
  }
  QByteArray bytes;
  return SecondsOf([&] {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(kResolution);
    QPainter painter(&writer);
    for (const ReportPage& page : pages.pages) {
      for (const PlacedText& text : page.texts) {
        painter.drawText(QPointF(text.x, text.y), QString::fromStdString(text.text));
      }
      writer.newPage();
    }
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  using namespace lorvane;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const CompanyFiles files(kEmployees, kHistoryRows);
  PagedReport pages;
  return RunComparison(argc, argv,
                       {"report of 30,000 rows as PDF", [&] { return Ours(files, pages); },
                        [&] { return Bare(files, pages); }});
}

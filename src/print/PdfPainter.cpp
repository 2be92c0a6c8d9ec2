#include "print/PdfPainter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFWriter.hh>

#include "Version.h"
#include "basic/RuntimeError.h"
#include "print/PageFonts.h"
#include "print/PagePainter.h"

namespace lorvane {
namespace {

constexpr int kPointsPerInch = 72;

QPageLayout PageOf(PageOrientation orientation) {
  return {
      QPageSize(QPageSize::Letter),
      orientation == PageOrientation::kPortrait ? QPageLayout::Portrait : QPageLayout::Landscape,
      QMarginsF()};
}

// What the writer has no say in: whose report it is.
std::string WithAuthor(const QByteArray& pdf, const std::string& author) {
  try {
    QPDF file;
    file.processMemoryFile("report", pdf.constData(), static_cast<std::size_t>(pdf.size()));
    file.getTrailer().getKey("/Info").replaceKey("/Author",
                                                 QPDFObjectHandle::newUnicodeString(author));
    QPDFWriter writer(file);
    writer.setOutputMemory();
    writer.setStreamDataMode(qpdf_s_preserve);
    writer.write();
    const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(bytes->getBuffer()), bytes->getSize()};
  } catch (const std::exception& error) {
    throw RuntimeError(error_number::kDeviceError,
                       std::string("The PDF file can't be made: ") + error.what() + ".");
  }
}

}  // namespace

PdfPainter::PdfPainter() = default;
PdfPainter::~PdfPainter() = default;

const PageFonts& PdfPainter::Fonts() const {
  if (fonts_ == nullptr) {
    fonts_ = std::make_unique<PageFonts>();
  }
  return *fonts_;
}

const TextMeasure& PdfPainter::Measure() const { return Fonts(); }

std::string PdfPainter::Pdf(const ReportDocument& report) {
  const PagedReport paged = LayOut(report, Fonts());
  const PagePainter pages(paged, Fonts());
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(kPointsPerInch * PageFonts::kUnitsPerPoint);
  writer.setPageLayout(PageOf(report.orientation));
  writer.setTitle(QString::fromStdString(report.title));
  writer.setCreator(QStringLiteral("Lorvane %1").arg(QLatin1String(kVersionText)));
  QPainter painter(&writer);
  for (std::size_t page = 0; page < paged.pages.size(); ++page) {
    if (page > 0) {
      writer.newPage();
    }
    pages.Paint(painter, page);
    TellProgress(page + 1, paged.pages.size());
  }
  painter.end();
  return WithAuthor(bytes, report.author);
}

}  // namespace lorvane

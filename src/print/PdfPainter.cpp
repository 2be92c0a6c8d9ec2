#include "print/PdfPainter.h"

#include <qpdf/qpdf-c.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

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

struct CloseFile {
  void operator()(qpdf_data file) const { qpdf_cleanup(&file); }
};
using PdfFile = std::unique_ptr<_qpdf_data, CloseFile>;

void Require(qpdf_data file, QPDF_ERROR_CODE outcome) {
  if ((outcome & QPDF_ERRORS) != 0 || qpdf_has_error(file) != 0) {
    throw RuntimeError(error_number::kDeviceError,
                       std::string("The PDF file can't be made: ") +
                           qpdf_get_error_full_text(file, qpdf_get_error(file)) + ".");
  }
}

// What the writer has no say in: whose report it is.
std::string WithAuthor(const QByteArray& pdf, const std::string& author) {
  const PdfFile owner(qpdf_init());
  qpdf_data file = owner.get();
  Require(file, qpdf_read_memory(file, "report", pdf.constData(),
                                 static_cast<unsigned long long>(pdf.size()), nullptr));
  const qpdf_oh info = qpdf_oh_get_key(file, qpdf_get_trailer(file), "/Info");
  qpdf_oh_replace_key(file, info, "/Author", qpdf_oh_new_unicode_string(file, author.c_str()));
  Require(file, qpdf_init_write_memory(file));
  qpdf_set_stream_data_mode(file, qpdf_s_preserve);
  Require(file, qpdf_write(file));
  const unsigned char* bytes = qpdf_get_buffer(file);
  return {bytes, bytes + qpdf_get_buffer_length(file)};
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

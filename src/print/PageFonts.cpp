#include "print/PageFonts.h"

#include <QString>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace lorvane {
namespace {

QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

int UnitsOf(double points) {
  return std::max(1, static_cast<int>(std::lround(points * PageFonts::kUnitsPerPoint)));
}

}  // namespace

PageFonts::PageFonts() {
  for (std::size_t style = 0; style < kPageStyles; ++style) {
    faces_.push_back(MakeFace(static_cast<PageStyle>(style)));
  }
}

PageFonts::Face PageFonts::MakeFace(PageStyle style) {
  Face face;
  face.font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                         QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
  face.font.setBold(IsBold(style));
  face.font.setPixelSize(UnitsOf(PointSizeOf(style)));
  // Without either, a text is as wide as its letters, at every resolution.
  face.font.setHintingPreference(QFont::PreferNoHinting);
  face.font.setKerning(false);
  const QFontMetricsF metrics(face.font);
  for (std::size_t letter = ' '; letter < kCommonLetters; ++letter) {
    face.widths[letter] =
        metrics.horizontalAdvance(QChar(static_cast<char16_t>(letter))) / kUnitsPerPoint;
  }
  face.lineHeight = metrics.height() / kUnitsPerPoint;
  face.ascent = metrics.ascent() / kUnitsPerPoint;
  return face;
}

double PageFonts::Width(std::string_view text, PageStyle style) const {
  const Face& face = FaceOf(style);
  double width = 0;
  for (const char letter : text) {
    const auto code = static_cast<unsigned char>(letter);
    if (code >= kCommonLetters) {
      return QFontMetricsF(face.font).horizontalAdvance(FromUtf8(text)) / kUnitsPerPoint;
    }
    width += face.widths[code];
  }
  return width;
}

double PageFonts::LineHeight(PageStyle style) const { return FaceOf(style).lineHeight; }

double PageFonts::Ascent(PageStyle style) const { return FaceOf(style).ascent; }

QFont PageFonts::FontOf(PageStyle style, double scale) const {
  QFont font = FaceOf(style).font;
  font.setPixelSize(UnitsOf(scale * PointSizeOf(style)));
  return font;
}

}  // namespace lorvane

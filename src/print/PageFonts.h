#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <array>
#include <string_view>
#include <vector>

#include "reports/PageLayout.h"

namespace lorvane {

/// The fonts of report pages, the same for paper, PDF and screen: a page breaks where it breaks
/// everywhere. Needs a QGuiApplication.
class PageFonts : public TextMeasure {
 public:
  /// Painters of pages are scaled so that this many units make a point: sizes are whole numbers
  /// then, and letters stand where they were measured.
  static constexpr int kUnitsPerPoint = 20;

  PageFonts();

  [[nodiscard]] double Width(std::string_view text, PageStyle style) const override;
  [[nodiscard]] double LineHeight(PageStyle style) const override;

  /// From the upper edge of a line to the foot of its letters, in points.
  [[nodiscard]] double Ascent(PageStyle style) const;
  /// The font in painter units, `scale` times as large as it is measured.
  [[nodiscard]] QFont FontOf(PageStyle style, double scale) const;

 private:
  /// Of the letters that most texts are made of.
  static constexpr std::size_t kCommonLetters = 128;

  struct Face {
    QFont font;
    std::array<double, kCommonLetters> widths{};
    double lineHeight = 0;
    double ascent = 0;
  };

  [[nodiscard]] static Face MakeFace(PageStyle style);
  [[nodiscard]] const Face& FaceOf(PageStyle style) const {
    return faces_[static_cast<std::size_t>(style)];
  }

  std::vector<Face> faces_;
};

}  // namespace lorvane

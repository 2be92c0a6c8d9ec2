#include "reports/PlainMeasure.h"

namespace lorvane {
namespace {

// Widths in ems, of whole families of letters.
double WidthOf(unsigned char first) {
  constexpr std::string_view kNarrow = " .,;:'|!ijltfrI()[]-";
  constexpr std::string_view kWide = "mwMW@%";
  constexpr double kNarrowEm = 0.3;
  constexpr double kWideEm = 0.87;
  constexpr double kCapitalEm = 0.7;
  constexpr double kLetterEm = 0.56;
  constexpr unsigned char kFirstOfThreeBytes = 0xE0;
  const char letter = static_cast<char>(first);
  if (kNarrow.find(letter) != std::string_view::npos) {
    return kNarrowEm;
  }
  if (kWide.find(letter) != std::string_view::npos) {
    return kWideEm;
  }
  if (first >= kFirstOfThreeBytes) {
    return 1;
  }
  return letter >= 'A' && letter <= 'Z' ? kCapitalEm : kLetterEm;
}

}  // namespace

double PlainMeasure::Width(std::string_view text, PageStyle style) const {
  constexpr unsigned char kContinuationMask = 0xC0;
  constexpr unsigned char kContinuation = 0x80;
  constexpr double kBoldFactor = 1.08;
  double ems = 0;
  for (const char byte : text) {
    const auto value = static_cast<unsigned char>(byte);
    if ((value & kContinuationMask) != kContinuation) {
      ems += WidthOf(value);
    }
  }
  return ems * PointSizeOf(style) * (IsBold(style) ? kBoldFactor : 1);
}

double PlainMeasure::LineHeight(PageStyle style) const {
  constexpr double kLeading = 1.25;
  return PointSizeOf(style) * kLeading;
}

}  // namespace lorvane

#pragma once

#include <string_view>

#include "reports/PageLayout.h"

namespace lorvane {

/// Measures of a common sans-serif font, for fronts without fonts of their own.
class PlainMeasure : public TextMeasure {
 public:
  [[nodiscard]] double Width(std::string_view text, PageStyle style) const override;
  [[nodiscard]] double LineHeight(PageStyle style) const override;
};

}  // namespace lorvane

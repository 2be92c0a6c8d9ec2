#pragma once

#include <string_view>

namespace lorvane {

/// Whether a number format of a workbook shows numbers as dates or times: by its code, or by its
/// number when it is one of those that every workbook has.
[[nodiscard]] bool IsDateFormat(std::string_view code);
[[nodiscard]] bool IsBuiltInDateFormat(int number);

}  // namespace lorvane

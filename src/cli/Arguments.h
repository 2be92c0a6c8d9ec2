#pragma once

#include <string>

#include "basic/Date.h"

namespace lorvane {

// What the commands make of the texts that they are given.

/// The full path of a file or folder. Raises CommandFailure when the folder that it would start
/// from, the working folder, was removed.
[[nodiscard]] std::string AbsolutePath(const std::string& path);

/// The day that a text names. Raises UsageFailure when it names none.
[[nodiscard]] DateTime DayOfArgument(const std::string& text);

struct YearRange {
  int first;
  int last;
};

/// The years that can be closed and have published rates.
inline constexpr YearRange kYearsOfBooks{1900, 2999};

/// The year that a text of four digits names. Raises UsageFailure for anything else, and for one
/// outside the range.
[[nodiscard]] int YearOfArgument(const std::string& text, YearRange range = kYearsOfBooks);

/// The dollars in a text. Raises as ToDouble does, and 13 for a comma that parts no thousands:
/// "1,25" isn't 125.
[[nodiscard]] double AmountOf(const std::string& text);

}  // namespace lorvane

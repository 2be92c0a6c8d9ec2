#include "cli/Arguments.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "cli/CommandFailure.h"

namespace lorvane {
namespace {

bool HasStrayComma(const std::string& amount) {
  constexpr std::size_t kThousands = 3;
  for (std::size_t comma = amount.find(','); comma != std::string::npos;
       comma = amount.find(',', comma + 1)) {
    const std::size_t end = amount.find_first_not_of("0123456789", comma + 1);
    if (std::min(end, amount.size()) - comma - 1 != kThousands) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::string AbsolutePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  if (error) {
    throw CommandFailure("'" + path +
                         "' can't be looked for: the folder that you are in was removed.");
  }
  return absolute.lexically_normal().string();
}

DateTime DayOfArgument(const std::string& text) {
  const std::optional<DateTime> date = ParseDate(text);
  if (!date) {
    throw UsageFailure("'" + text + "' is no date.");
  }
  return date->Day();
}

int YearOfArgument(const std::string& text, YearRange range) {
  constexpr std::size_t kDigits = 4;
  int year = 0;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, year);
  if (error != std::errc() || rest != end || text.size() != kDigits || year < range.first ||
      year > range.last) {
    throw UsageFailure(
        fmt::format("'{}' is no year from {} to {}.", text, range.first, range.last));
  }
  return year;
}

double AmountOf(const std::string& text) {
  if (HasStrayComma(text)) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return ToDouble(text);
}

}  // namespace lorvane

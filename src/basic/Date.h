#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

/// A day with a time of day, of the years 100 to 9999. No time zone: an employer's books know none.
struct DateTime {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend constexpr auto operator<=>(const DateTime&, const DateTime&) = default;

  [[nodiscard]] bool HasTime() const { return hour != 0 || minute != 0 || second != 0; }
  /// The same day at midnight.
  [[nodiscard]] DateTime Day() const { return {year, month, day}; }
};

/// The day of the three numbers, or nothing when there is no such day.
[[nodiscard]] std::optional<DateTime> MakeDate(int year, int month, int day);

/// Reads M/d/yyyy (d/M/yyyy when the month can't be one), yyyy-mm-dd and written-out months, each
/// with an optional time behind it. Two-digit years 00 to 29 are 2000 to 2029, 30 to 99 are 1930 to
/// 1999.
[[nodiscard]] std::optional<DateTime> ParseDate(std::string_view text);
/// As ParseDate; raises 13 for a text that is no date.
[[nodiscard]] DateTime ToDate(std::string_view text);
[[nodiscard]] bool IsDate(std::string_view text);

/// M/d/yyyy, with h:mm:ss AM/PM behind it when there is a time of day. The same on every machine.
[[nodiscard]] std::string ShortDate(const DateTime& date);
/// yyyy-mm-dd, with Thh:mm:ss behind it when there is a time of day: sorts as text.
[[nodiscard]] std::string IsoDate(const DateTime& date);
/// Reads what IsoDate writes, and the same with a blank for the T.
[[nodiscard]] std::optional<DateTime> ParseIsoDate(std::string_view text);
/// "MMMM dd, yyyy": March 05, 2026.
[[nodiscard]] std::string LongDate(const DateTime& date);

/// Days since 30 December 1899 with the time of day as fraction: what a date is as a number.
[[nodiscard]] double SerialOf(const DateTime& date);
/// The date whose serial number it is; nothing outside the years 100 to 9999.
[[nodiscard]] std::optional<DateTime> DateOfSerial(double serial);

}  // namespace lorvane

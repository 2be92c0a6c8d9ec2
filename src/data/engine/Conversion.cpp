#include "data/engine/Conversion.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <string>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/engine/ColumnTypes.h"
#include "data/engine/Names.h"

namespace lorvane::sql {
namespace {

constexpr std::size_t kLongestExcerpt = 60;
constexpr std::int32_t kTrue = -1;

std::string Excerpt(std::string_view text) {
  return Length(text) > kLongestExcerpt ? Left(text, kLongestExcerpt) + "..." : std::string(text);
}

[[noreturn]] void FailType(std::string_view text, std::string_view wanted) {
  throw RuntimeError(error_number::kEngineTypeMismatch,
                     fmt::format("The text \"{}\" is no {}.", Excerpt(text), wanted));
}

[[noreturn]] void FailType(std::string_view text, const Column& column) {
  throw RuntimeError(error_number::kEngineTypeMismatch,
                     fmt::format("The text \"{}\" can't be stored in the column {}: it is no {}.",
                                 Excerpt(text), column.name, TypeWord(column.type)));
}

[[noreturn]] void FailTooLarge(const Value& value, const Column& column) {
  throw RuntimeError(
      error_number::kEngineTextTooLong,
      fmt::format("The number {} is too large for the column {}.", TextOf(value), column.name));
}

std::optional<double> TryNumber(std::string_view text) {
  try {
    return ParseNumber(text);
  } catch (const RuntimeError&) {
    return HUGE_VAL;
  }
}

std::optional<bool> TryFlag(std::string_view text) {
  const std::string word = Trim(text);
  for (const std::string_view yes : {"True", "Yes", "On"}) {
    if (SameName(word, yes)) {
      return true;
    }
  }
  for (const std::string_view no : {"False", "No", "Off"}) {
    if (SameName(word, no)) {
      return false;
    }
  }
  const std::optional<double> number = TryNumber(text);
  return number ? std::optional(*number != 0) : std::nullopt;
}

// A value that isn't null as a number; for a text only when it is one.
struct ToNumber {
  std::optional<double> operator()(std::monostate) const { return std::nullopt; }
  std::optional<double> operator()(bool flag) const { return flag ? kTrue : 0; }
  std::optional<double> operator()(std::int32_t number) const { return number; }
  std::optional<double> operator()(double number) const { return number; }
  std::optional<double> operator()(Currency amount) const { return amount.ToDouble(); }
  std::optional<double> operator()(const DateTime& date) const { return SerialOf(date); }
  std::optional<double> operator()(const std::string& text) const { return TryNumber(text); }
};

double NumberFor(const Value& value, const Column& column) {
  const std::optional<double> number = std::visit(ToNumber(), value);
  if (!number) {
    FailType(TextOf(value), column);
  }
  if (!std::isfinite(*number)) {
    FailTooLarge(value, column);
  }
  return *number;
}

Value StoredText(const Value& value, const Column& column) {
  std::string text = ListingTextOf(value);
  const auto limit = static_cast<std::size_t>(column.size);
  if (limit != 0 && text.size() > limit && Length(text) > limit) {
    throw RuntimeError(error_number::kEngineTextTooLong,
                       fmt::format("The text \"{}\" is too long for the column {}, which takes {} "
                                   "characters.",
                                   Excerpt(text), column.name, column.size));
  }
  return text;
}

Value StoredLong(const Value& value, const Column& column) {
  if (std::holds_alternative<std::int32_t>(value)) {
    return value;
  }
  const double number = NumberFor(value, column);
  try {
    return ToLong(number);
  } catch (const RuntimeError&) {
    FailTooLarge(value, column);
  }
}

Value StoredAmount(const Value& value, const Column& column) {
  const std::optional<Currency> amount = AmountOf(NumberFor(value, column));
  if (!amount) {
    FailTooLarge(value, column);
  }
  return amount->ToDouble();
}

Value StoredFlag(const Value& value, const Column& column) {
  const std::string* text = std::get_if<std::string>(&value);
  const std::optional<bool> flag =
      text != nullptr ? TryFlag(*text) : std::optional(NumberFor(value, column) != 0);
  if (!flag) {
    FailType(*text, column);
  }
  return *flag ? kTrue : 0;
}

Value StoredDate(const Value& value, const Column& column) {
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return IsoDate(*date);
  }
  if (const std::string* text = std::get_if<std::string>(&value)) {
    const std::optional<DateTime> date = ParseDate(*text);
    if (!date) {
      FailType(*text, column);
    }
    return IsoDate(*date);
  }
  const std::optional<DateTime> date = DateOfSerial(NumberFor(value, column));
  if (!date) {
    FailTooLarge(value, column);
  }
  return IsoDate(*date);
}

// For a column of a type that isn't ours.
Value StoredPlain(const Value& value) {
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return IsoDate(*date);
  }
  if (std::holds_alternative<bool>(value) || std::holds_alternative<Currency>(value)) {
    return *std::visit(ToNumber(), value);
  }
  return value;
}

}  // namespace

Value ToStored(const Value& value, const Column& column) {
  if (IsNull(value)) {
    return column.type == ColumnType::kYesNo ? Value(0) : Value();
  }
  switch (column.type) {
    case ColumnType::kText:
      return StoredText(value, column);
    case ColumnType::kLong:
      return StoredLong(value, column);
    case ColumnType::kCurrency:
      return StoredAmount(value, column);
    case ColumnType::kDouble:
      return NumberFor(value, column);
    case ColumnType::kYesNo:
      return StoredFlag(value, column);
    case ColumnType::kDate:
      return StoredDate(value, column);
    case ColumnType::kUnknown:
      break;
  }
  return StoredPlain(value);
}

std::optional<Currency> AmountOf(double stored) {
  // Nearly every number met is the double nearest to a four-decimal value already.
  constexpr double units = 10000.0;
  constexpr double exactLimit = 1e11;
  const double scaled = std::nearbyint(stored * units);
  if (std::abs(stored) < exactLimit && scaled / units == stored) {
    return Currency::FromTenThousandths(static_cast<std::int64_t>(scaled));
  }
  try {
    return Currency::FromDouble(stored);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::optional<DateTime> DateOf(std::string_view stored) {
  const std::optional<DateTime> date = ParseIsoDate(stored);
  return date ? date : ParseDate(stored);
}

double NumberInText(std::string_view text) {
  const std::optional<double> number = TryNumber(text);
  if (!number || !std::isfinite(*number)) {
    FailType(text, TypeWord(ColumnType::kDouble));
  }
  return *number;
}

double FlagInText(std::string_view text) {
  const std::optional<double> number = TryNumber(text);
  if (number) {
    return *number;
  }
  const std::optional<bool> flag = TryFlag(text);
  if (!flag) {
    FailType(text, TypeWord(ColumnType::kYesNo));
  }
  return *flag ? kTrue : 0;
}

DateTime DateInText(std::string_view text) {
  const std::optional<DateTime> date = DateOf(text);
  if (!date) {
    FailType(text, TypeWord(ColumnType::kDate));
  }
  return *date;
}

}  // namespace lorvane::sql

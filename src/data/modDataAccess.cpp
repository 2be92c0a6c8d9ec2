#include "data/modDataAccess.h"

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr const char* kNullWord = "Null";

double NumberOfValue(const Value& value) {
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? -1 : 0;
  }
  if (const auto* number = std::get_if<std::int32_t>(&value)) {
    return *number;
  }
  if (const double* number = std::get_if<double>(&value)) {
    return *number;
  }
  if (const Currency* amount = std::get_if<Currency>(&value)) {
    return amount->ToDouble();
  }
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return SerialOf(*date);
  }
  return ToDouble(std::get<std::string>(value));
}

}  // namespace

std::string EscapeQuotes(std::string_view text) { return Replace(text, "'", "''"); }

std::string QuoteText(std::string_view text) {
  return text.empty() ? kNullWord : "'" + EscapeQuotes(text) + "'";
}

std::string QuoteNumber(std::string_view text) {
  return IsNumeric(text) ? std::string(text) : kNullWord;
}

std::string QuoteNumber(double number) { return ShortestText(number); }

std::string QuoteDate(std::string_view text) {
  const std::optional<DateTime> date = ParseDate(text);
  return date ? "'" + ShortDate(*date) + "'" : kNullWord;
}

std::int16_t BoolToSql(bool flag) { return flag ? 1 : 0; }

std::int16_t BoolToSql(const Value& value) { return BoolToSql(NullToBool(value)); }

std::string NullToText(const Value& value) { return Trim(TextOf(value)); }

std::int32_t NullToLong(const Value& value) {
  return IsNull(value) ? -1 : ToLong(NumberOfValue(value));
}

bool NullToBool(const Value& value) {
  if (IsNull(value)) {
    return false;
  }
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (EqualsNoCase(*text, "True") || EqualsNoCase(*text, "False")) {
      return EqualsNoCase(*text, "True");
    }
  }
  return NumberOfValue(value) != 0;
}

Currency NullToCurrency(const Value& value) {
  if (const Currency* amount = std::get_if<Currency>(&value)) {
    return *amount;
  }
  return Currency::FromDouble(NullToDouble(value));
}

double NullToDouble(const Value& value) { return IsNull(value) ? 0 : NumberOfValue(value); }

std::int16_t BoolToCheck(const Value& value) { return BoolToSql(value); }

std::int16_t CheckToBool(std::int16_t state) { return state == 1 ? 1 : 0; }

}  // namespace lorvane

#include "basic/Date.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <vector>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr std::array<std::string_view, 12> kMonths{"january",   "february", "march",    "april",
                                                   "may",       "june",     "july",     "august",
                                                   "september", "october",  "november", "december"};

enum class TokenKind { kNumber, kWord, kMark };

struct Token {
  TokenKind kind = TokenKind::kMark;
  std::string text;  // words in small letters
  int number = 0;
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

template <typename Belongs>
std::string Take(std::string_view text, std::size_t& at, Belongs belongs) {
  const std::size_t from = at;
  while (at < text.size() && belongs(text[at])) {
    ++at;
  }
  return std::string(text.substr(from, at - from));
}

// Nothing when a number has more digits than any part of a date.
std::optional<std::vector<Token>> Tokens(std::string_view text) {
  std::vector<Token> tokens;
  for (std::size_t at = 0; at < text.size();) {
    Token token;
    if (text[at] == ' ' || text[at] == ',') {
      ++at;
      continue;
    }
    if (IsDigit(text[at])) {
      token.kind = TokenKind::kNumber;
      token.text = Take(text, at, IsDigit);
      if (token.text.size() > 4) {
        return std::nullopt;
      }
      token.number = std::stoi(token.text);
    } else if (IsLetter(text[at])) {
      token.kind = TokenKind::kWord;
      token.text = ToLower(Take(text, at, IsLetter));
    } else {
      token.text = std::string(text.substr(at, 1));
      ++at;
    }
    tokens.push_back(token);
  }
  return tokens;
}

std::optional<int> MonthOf(const std::string& word) {
  for (std::size_t i = 0; i < kMonths.size(); ++i) {
    if (word.size() >= 3 && kMonths[i].substr(0, word.size()) == word) {
      return static_cast<int>(i) + 1;
    }
  }
  return std::nullopt;
}

// The year as meant, by its number of digits; nothing for one or three digits.
std::optional<int> YearOf(const Token& token) {
  if (token.text.size() == 4) {
    return token.number;
  }
  if (token.text.size() == 2) {
    return token.number + (token.number < 30 ? 2000 : 1900);
  }
  return std::nullopt;
}

class DateReader {
 public:
  explicit DateReader(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  std::optional<DateTime> Read() {
    std::optional<DateTime> date = ReadDay();
    if (!date) {
      return std::nullopt;
    }
    if (at_ < tokens_.size() && !ReadTime(*date)) {
      return std::nullopt;
    }
    return at_ == tokens_.size() ? date : std::nullopt;
  }

 private:
  [[nodiscard]] const Token* Peek(std::size_t ahead = 0) const {
    return at_ + ahead < tokens_.size() ? &tokens_[at_ + ahead] : nullptr;
  }
  [[nodiscard]] bool IsKind(std::size_t ahead, TokenKind kind) const {
    return Peek(ahead) != nullptr && Peek(ahead)->kind == kind;
  }
  bool TakeMark(std::string_view mark) {
    if (!IsKind(0, TokenKind::kMark) || Peek()->text != mark) {
      return false;
    }
    ++at_;
    return true;
  }
  std::optional<Token> TakeNumber() {
    if (!IsKind(0, TokenKind::kNumber)) {
      return std::nullopt;
    }
    return tokens_[at_++];
  }
  std::optional<int> TakeMonth() {
    const std::optional<int> month =
        IsKind(0, TokenKind::kWord) ? MonthOf(Peek()->text) : std::nullopt;
    at_ += month ? 1U : 0U;
    return month;
  }

  std::optional<DateTime> ReadDay() {
    if (IsKind(0, TokenKind::kWord)) {
      return ReadMonthFirst();
    }
    const std::optional<Token> first = TakeNumber();
    if (!first) {
      return std::nullopt;
    }
    if (IsKind(0, TokenKind::kWord) ||
        (IsKind(0, TokenKind::kMark) && IsKind(1, TokenKind::kWord))) {
      return ReadDayFirst(*first);
    }
    return ReadNumbers(*first);
  }

  // January 5, 2026
  std::optional<DateTime> ReadMonthFirst() {
    const std::optional<int> month = TakeMonth();
    const std::optional<Token> day = month ? TakeNumber() : std::nullopt;
    const std::optional<Token> year = day ? TakeNumber() : std::nullopt;
    return year ? Made(YearOf(*year), *month, day->number) : std::nullopt;
  }

  // 5 January 2026, 5-Jan-2026
  std::optional<DateTime> ReadDayFirst(const Token& day) {
    const bool dashed = TakeMark("-");
    const std::optional<int> month = TakeMonth();
    if (!month || (dashed && !TakeMark("-"))) {
      return std::nullopt;
    }
    const std::optional<Token> year = TakeNumber();
    return year ? Made(YearOf(*year), *month, day.number) : std::nullopt;
  }

  // 1/5/2026, 2026-01-05
  std::optional<DateTime> ReadNumbers(const Token& first) {
    const std::string mark = IsKind(0, TokenKind::kMark) ? Peek()->text : std::string();
    if ((mark != "/" && mark != "-") || !TakeMark(mark)) {
      return std::nullopt;
    }
    const std::optional<Token> second = TakeNumber();
    if (!second || !TakeMark(mark)) {
      return std::nullopt;
    }
    const std::optional<Token> third = TakeNumber();
    if (!third) {
      return std::nullopt;
    }
    if (first.text.size() == 4) {
      return MakeDate(first.number, second->number, third->number);
    }
    const bool monthFirst = first.number <= 12;
    return Made(YearOf(*third), monthFirst ? first.number : second->number,
                monthFirst ? second->number : first.number);
  }

  static std::optional<DateTime> Made(std::optional<int> year, int month, int day) {
    return year ? MakeDate(*year, month, day) : std::nullopt;
  }

  // 10:00 AM, 22:15:30, T08:00:00
  bool ReadTime(DateTime& date) {
    if (IsKind(0, TokenKind::kWord) && Peek()->text == "t") {
      ++at_;
    }
    const std::optional<Token> hour = TakeNumber();
    if (!hour) {
      return false;
    }
    date.hour = hour->number;
    for (int* part : {&date.minute, &date.second}) {
      if (!TakeMark(":")) {
        break;
      }
      const std::optional<Token> number = TakeNumber();
      if (!number || number->number > 59) {
        return false;
      }
      *part = number->number;
    }
    return ReadHalfOfDay(date);
  }

  bool ReadHalfOfDay(DateTime& date) {
    if (!IsKind(0, TokenKind::kWord)) {
      return date.hour <= 23;
    }
    const std::string half = Peek()->text;
    if ((half != "am" && half != "pm") || date.hour < 1 || date.hour > 12) {
      return false;
    }
    ++at_;
    date.hour = date.hour % 12 + (half == "pm" ? 12 : 0);
    return true;
  }

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
};

std::chrono::sys_days DaysOf(const DateTime& date) {
  return std::chrono::year(date.year) / date.month / date.day;
}

}  // namespace

std::optional<DateTime> MakeDate(int year, int month, int day) {
  const std::chrono::year_month_day date(std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  if (year < 100 || year > 9999 || month < 1 || day < 1 || !date.ok()) {
    return std::nullopt;
  }
  return DateTime{year, month, day};
}

std::optional<DateTime> ParseDate(std::string_view text) {
  std::optional<std::vector<Token>> tokens = Tokens(text);
  return tokens ? DateReader(std::move(*tokens)).Read() : std::nullopt;
}

DateTime ToDate(std::string_view text) {
  const std::optional<DateTime> date = ParseDate(text);
  if (!date) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return *date;
}

bool IsDate(std::string_view text) { return ParseDate(text).has_value(); }

std::string ShortDate(const DateTime& date) {
  std::string text = fmt::format("{}/{}/{}", date.month, date.day, date.year);
  if (date.HasTime()) {
    const int hour = date.hour % 12 == 0 ? 12 : date.hour % 12;
    text += fmt::format(" {}:{:02}:{:02} {}", hour, date.minute, date.second,
                        date.hour < 12 ? "AM" : "PM");
  }
  return text;
}

std::string IsoDate(const DateTime& date) {
  std::string text = fmt::format("{:04}-{:02}-{:02}", date.year, date.month, date.day);
  if (date.HasTime()) {
    text += fmt::format("T{:02}:{:02}:{:02}", date.hour, date.minute, date.second);
  }
  return text;
}

std::optional<DateTime> ParseIsoDate(std::string_view text) {
  constexpr std::size_t dayLength = 10;
  constexpr std::size_t fullLength = 19;
  const auto number = [&](std::size_t at, std::size_t count) {
    int value = 0;
    for (std::size_t i = at; i < at + count; ++i) {
      if (!IsDigit(text[i])) {
        return -1;
      }
      value = value * 10 + (text[i] - '0');
    }
    return value;
  };
  if ((text.size() != dayLength && text.size() != fullLength) || text[4] != '-' || text[7] != '-') {
    return std::nullopt;
  }
  std::optional<DateTime> date = MakeDate(number(0, 4), number(5, 2), number(8, 2));
  if (!date || text.size() == dayLength) {
    return date;
  }
  date->hour = number(11, 2);
  date->minute = number(14, 2);
  date->second = number(17, 2);
  const bool marked = (text[10] == 'T' || text[10] == ' ') && text[13] == ':' && text[16] == ':';
  const bool inDay = date->hour >= 0 && date->hour < 24 && date->minute >= 0 && date->minute < 60 &&
                     date->second >= 0 && date->second < 60;
  return marked && inDay ? date : std::nullopt;
}

std::string LongDate(const DateTime& date) {
  std::string month(kMonths[static_cast<std::size_t>(date.month - 1)]);
  month.front() = static_cast<char>(month.front() - 'a' + 'A');
  return fmt::format("{} {:02}, {}", month, date.day, date.year);
}

double SerialOf(const DateTime& date) {
  const std::chrono::days days = DaysOf(date) - DaysOf(DateTime{});
  const double seconds = date.hour * 3600.0 + date.minute * 60.0 + date.second;
  return static_cast<double>(days.count()) + seconds / 86400.0;
}

std::optional<DateTime> DateOfSerial(double serial) {
  // Days from 30 December 1899 to the ends of the years 99 and 9999.
  constexpr double beforeFirst = -657435.0;
  constexpr double afterLast = 2958466.0;
  if (!(serial > beforeFirst && serial < afterLast)) {
    return std::nullopt;
  }
  constexpr double secondsOfDay = 86400.0;
  const auto seconds = static_cast<std::int64_t>(std::nearbyint(serial * secondsOfDay));
  const std::chrono::sys_seconds moment =
      std::chrono::sys_days(std::chrono::year(1899) / 12 / 30) + std::chrono::seconds(seconds);
  const std::chrono::sys_days day = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day parts(day);
  std::optional<DateTime> date = MakeDate(static_cast<int>(parts.year()),
                                          static_cast<int>(static_cast<unsigned>(parts.month())),
                                          static_cast<int>(static_cast<unsigned>(parts.day())));
  if (date) {
    const std::chrono::hh_mm_ss time(moment - day);
    date->hour = static_cast<int>(time.hours().count());
    date->minute = static_cast<int>(time.minutes().count());
    date->second = static_cast<int>(time.seconds().count());
  }
  return date;
}

}  // namespace lorvane

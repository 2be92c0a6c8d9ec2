#include "screen/YearQuestion.h"

#include "screen/ScreenServices.h"

namespace lorvane {

bool AcceptYear(ScreenContext context, std::int16_t year, const char* tooEarly) {
  constexpr int kFirstFourDigits = 1000;
  constexpr int kFirst = 2000;  // the year 2000 itself passes, whatever the sentence says
  constexpr int kLast = 2100;
  if (year < kFirstFourDigits) {
    context.services.MsgBox("Please enter a four digit year.", box::kExclamation, "Year");
  } else if (year < kFirst) {
    context.services.MsgBox(tooEarly, box::kInformation, "Payments");
  } else if (year > kLast) {
    context.services.MsgBox("Please enter a valid year.", box::kExclamation, "Year");
  } else {
    return true;
  }
  return false;
}

}  // namespace lorvane

#include "screen/Dates.h"

#include <utility>

#include "basic/RuntimeError.h"
#include "screen/Screen.h"

namespace lorvane {

DatePicker::DatePicker(Screen& screen, std::string name, const DateTime& date)
    : Control(screen, std::move(name)), date_(date.Day()) {}

void DatePicker::SetDate(const DateTime& date) {
  const DateTime day = date.Day();
  if ((earliest_ && day < *earliest_) || (latest_ && day > *latest_)) {
    throw RuntimeError(error_number::kDateOutOfRange);
  }
  date_ = date;
  Changed();
  if (OnChange) {
    OnChange();
  }
}

void DatePicker::SetLimits(std::optional<DateTime> earliest, std::optional<DateTime> latest) {
  earliest_ = earliest;
  latest_ = latest;
  Changed();
}

void DatePicker::UserPick(const DateTime& date) {
  if (!Usable() || !Owner().MoveFocus(*this)) {
    return;
  }
  try {
    SetDate(date);
  } catch (const RuntimeError&) {
    // The sheet doesn't offer days outside the limits.
  }
}

void Calendar::SetDate(std::optional<DateTime> date) {
  date_ = date;
  Changed();
}

void Calendar::UserPick(const DateTime& date) {
  if (Usable() && Owner().MoveFocus(*this)) {
    SetDate(date.Day());
    RaiseMouseUp(MouseButton::kLeft);
    RaiseClick();
  }
}

void Calendar::UserClick() {
  if (date_) {
    UserPick(*date_);
  }
}

std::string Calendar::ShownText() const { return date_ ? ShortDate(*date_) : std::string(); }

}  // namespace lorvane

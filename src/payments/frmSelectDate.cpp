#include "payments/frmSelectDate.h"

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/YearQuestion.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

constexpr const char* kSection = "Assessment";

// Whatever goes wrong while the dialog sets itself up is told, and the next step runs.
template <typename Step>
void RunStep(ScreenContext context, Step step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    ShowError(context, error, box::kCritical);
  }
}

}  // namespace

frmSelectDate::frmSelectDate(ScreenContext context)
    : Screen(context, "frmSelectDate", "Select Date") {
  calDate.SetTip("Date of the payments");
  cmdOK.SetButtonRole(Command::Role::kDefault);
  cmdCancel.SetButtonRole(Command::Role::kCancel);
  cmdOK.OnClick = [this] { TakeDate(); };
  cmdCancel.OnClick = [this] {
    Cancel();
    Close();
  };
}

void frmSelectDate::Load() {
  calDate.SetDate(context_.services.Now().Day());
  RunStep(context_, [this] { ReadLastEntry(); });
  RunStep(context_, [this] { ReadCurrentYear(); });
  RunStep(context_, [this] { AskCurrentYear(); });
}

void frmSelectDate::ReadLastEntry() {
  calDate.SetDate(ToDate(context_.session.Ini().KeyGet(kSection, "LastEntry", "")).Day());
}

void frmSelectDate::ReadCurrentYear() {
  currentYear_ = ToInteger(context_.session.Ini().KeyGet(kSection, "CurrentYear", ""));
}

void frmSelectDate::AskCurrentYear() {
  while (currentYear_ == 0) {
    const std::string given =
        context_.services.InputBox("What year should these payments be assigned to?", "Year",
                                   std::to_string(context_.services.Now().year));
    const std::int16_t year = ToInteger(given);
    if (AcceptYear(context_, year, "Only payments after 2000 should be recorded.")) {
      currentYear_ = year;
      context_.session.Ini().KeySave(std::to_string(year), kSection, "CurrentYear");
      calDate.SetDate(MakeDate(year, 1, 1));
    }
  }
}

void frmSelectDate::TakeDate() {
  if (StoreLastEntry()) {
    context_.session.PostingDate = *calDate.Date();
    chosen_ = true;
  } else {
    Cancel();
  }
  Close();
}

void frmSelectDate::Cancel() {
  context_.session.PostingDate = Session::kNoPostingDate;
  context_.services.SetPointer(pointer::kDefault);
}

bool frmSelectDate::StoreLastEntry() {
  if (!ValidatePostingYear()) {
    return false;
  }
  context_.session.Ini().KeySave(ShortDate(*calDate.Date()), kSection, "LastEntry");
  return true;
}

bool frmSelectDate::ValidatePostingYear() {
  const int year = calDate.Date()->year;
  if (currentYear_ < year) {
    context_.services.MsgBox(
        "Please perform the year end procedure before posting\r\nto a new year.", box::kExclamation,
        "New Year");
  } else if (currentYear_ > year) {
    context_.services.MsgBox(
        "You cannot post to a previous year. If you would\r\nlike to access a previous year's data "
        "open the\r\napplicable year end folder.",
        box::kInformation, "Previous Year");
  }
  return currentYear_ == year;
}

void frmSelectDate::Unload() {
  if (!chosen_) {
    context_.session.PostingDate = Session::kNoPostingDate;
  }
}

}  // namespace lorvane

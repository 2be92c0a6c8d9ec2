#include "cli/BoxButtons.h"

#include "screen/ScreenServices.h"

namespace lorvane {

bool OffersButton(int flags, int given) {
  switch (flags & box::kButtonMask) {
    case box::kOkCancel:
      return given == answer::kOk || given == answer::kCancel;
    case box::kYesNo:
      return given == answer::kYes || given == answer::kNo;
    case box::kYesNoCancel:
      return given == answer::kYes || given == answer::kNo || given == answer::kCancel;
    default:
      return given == answer::kOk;
  }
}

int RefusalOf(int flags) {
  return OffersButton(flags, answer::kNo) ? answer::kNo : answer::kCancel;
}

int ConsentTo(int flags) { return OffersButton(flags, answer::kYes) ? answer::kYes : answer::kOk; }

std::string ButtonName(int given) {
  switch (given) {
    case answer::kYes:
      return "Yes";
    case answer::kNo:
      return "No";
    case answer::kCancel:
      return "Cancel";
    default:
      return "OK";
  }
}

}  // namespace lorvane

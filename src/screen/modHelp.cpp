#include "screen/modHelp.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"

namespace lorvane {

void ShowManual(ScreenContext context) {
  ScreenServices& services = context.services;
  services.SetPointer(pointer::kHourglass);
  try {
    services.ShowHelp();
  } catch (const RuntimeError& error) {
    if (error.Number() == error_number::kHelpNotAvailable) {
      services.MsgBox("Could not find Internet Explorer.  Please ensure that it is installed.",
                      box::kInformation, "IE 4.0 Not Found");
    } else {
      services.MsgBox(
          "You have encountered the following error: " + std::to_string(error.Number()) + kCrLf +
              "Description: " + error.Description(),
          box::kPlain, "Error");
    }
  }
  services.SetPointer(pointer::kDefault);
}

void ShowAbout(ScreenContext context) {
  context.services.SetPointer(pointer::kHourglass);
  context.services.OpenScreen("frmAbout");
  context.services.SetPointer(pointer::kDefault);
}

}  // namespace lorvane

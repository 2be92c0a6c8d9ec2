#include "screen/modForm.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "screen/ScreenServices.h"

namespace lorvane {

int AskSave(Screen& screen) {
  ScreenServices& services = screen.Context().services;
  const int shape = services.Pointer();
  services.SetPointer(pointer::kDefault);
  const int given =
      services.MsgBox("Your information has changed.\r\n\r\nDo you wish to save the changes?",
                      box::kYesNoCancel | box::kQuestion, screen.Caption());
  services.SetPointer(shape);
  return given;
}

bool AskYesNo(ScreenContext context, const std::string& text) {
  const Screen* active = context.services.ActiveScreen();
  return context.services.MsgBox(text, box::kYesNo | box::kQuestion,
                                 active != nullptr ? active->Caption() : std::string()) ==
         answer::kYes;
}

void CentreForm(Screen& screen) {
  if (const Screen* main = screen.Context().services.FindScreen("frmMain")) {
    screen.Place.left = (main->Place.width - screen.Place.width) / 2;
    screen.Place.top = (main->Place.height - screen.Place.height) / 2;
  }
}

void FocusFieldInError(Screen& screen, const std::string& fieldName, TabStrip* tabs) {
  const std::string wanted = ToUpper(Trim(fieldName));
  for (Control* control : screen.Controls()) {
    if (control->DataField.empty() || ToUpper(Trim(control->DataField)) != wanted ||
        !control->Enabled()) {
      continue;
    }
    if (tabs != nullptr && control->TabPage > 0) {
      tabs->SetTab(control->TabPage - 1);
    }
    screen.SetFocus(*control);
    return;
  }
}

void ShowError(ScreenContext context, const RuntimeError& error, int flags) {
  context.services.MsgBox(NumberAndDescription(error), flags, "Error");
}

}  // namespace lorvane

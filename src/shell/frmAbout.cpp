#include "shell/frmAbout.h"

#include "screen/ScreenServices.h"
#include "shell/frmMain.h"

namespace lorvane {

frmAbout::frmAbout(ScreenContext context)
    : Screen(context, "frmAbout", std::string("About ") + ScreenServices::kProgramName) {
  cmdOK.OnClick = [this] { Close(); };
}

void frmAbout::Load() {
  lblAppName.SetCaption("Lorvane Assessment for Windows");
  lblAppVersion.SetCaption(VersionLine());
  lblDescription.SetCaption(
      "Keeps an employer's payments to employees and sub-contractors, works out what they are "
      "assessed for workers' compensation, and reports it to the board.");
  lblBuiltWith.SetCaption("Built with SQLCipher, OpenSSL, ICU, {fmt} and Orcus.");
  SetFocus(cmdOK);
}

void frmAbout::KeyPreview(int& key) {
  if (key == key_code::kEscape || key == key_code::kEnter) {
    key = key_code::kNone;
    Close();
  }
}

}  // namespace lorvane

#include "shell/frmSplash.h"

#include "screen/ScreenServices.h"
#include "shell/frmMain.h"

namespace lorvane {

frmSplash::frmSplash(ScreenContext context)
    : Screen(context, "frmSplash", ScreenServices::kProgramName) {}

void frmSplash::Load() {
  context_.services.SetPointer(pointer::kHourglass);
  lblAppVersion.SetCaption(VersionLine());
}

void frmSplash::Unload() { context_.services.SetPointer(pointer::kDefault); }

void frmSplash::Timer1_Timer() {
  context_.services.OpenModeless("frmMain");
  Close();
}

}  // namespace lorvane

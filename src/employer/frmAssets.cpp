#include "employer/frmAssets.h"

#include "screen/Session.h"

namespace lorvane {

frmAssets::frmAssets(ScreenContext context)
    : Screen(context, "frmAssets", "Asset Log"),
      assetsPage(*this, context.session.gDataConn.get()) {
  cmdOK.OnClick = cmdClose.OnClick = [this] { Close(); };
}

}  // namespace lorvane

#pragma once

#include "employer/AssetsPage.h"
#include "screen/Buttons.h"
#include "screen/Screen.h"

namespace lorvane {

/// The window on what the company owns.
class frmAssets : public Screen {
 public:
  explicit frmAssets(ScreenContext context);

  AssetsPage assetsPage;
  Command cmdOK{*this, "cmdOK", "&OK"};
  Command cmdClose{*this, "cmdClose", "&Close"};

  void Load() override { assetsPage.Load(); }
  [[nodiscard]] bool QueryUnload() override { return assetsPage.MayClose(); }
  void Unload() override { assetsPage.Unload(); }
};

}  // namespace lorvane

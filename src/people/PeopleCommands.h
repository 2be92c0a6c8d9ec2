#pragma once

#include "screen/Buttons.h"
#include "screen/Menu.h"

namespace lorvane {

/// The tool bar of a window of people, and the pop-up menu of its list.
struct PeopleToolBar {
  explicit PeopleToolBar(Screen& screen);

  Frame picTbrMain;
  Command cmdTbrNew;
  Command cmdTbrImport;
  Command cmdTbrSave;
  Command cmdTbrRefresh;
  Command cmdTbrFind;
  Command cmdTbrDelete;

  MenuEntry mnuPopUp;
  MenuEntry mnuPoSortAsc;
  MenuEntry mnuPoSortDesc;

  /// Everything but Save.
  void ShowBrowsing() { EnableSave(false); }
  /// Save alone.
  void ShowEditing() { EnableSave(true); }

 private:
  void EnableSave(bool enabled);
};

/// The buttons at the foot of a window of people.
struct PeopleButtons {
  explicit PeopleButtons(Screen& screen);

  Command cmdAdd;
  Command cmdApply;
  Command cmdOK;
  Command cmdClose;
};

}  // namespace lorvane

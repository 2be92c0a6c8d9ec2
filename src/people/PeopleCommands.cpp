#include "people/PeopleCommands.h"

namespace lorvane {

PeopleToolBar::PeopleToolBar(Screen& screen)
    : picTbrMain(screen, "picTbrMain"),
      cmdTbrNew(screen, "cmdTbr_0", "", "New estimate"),
      cmdTbrImport(screen, "cmdTbr_1", "", "Import"),
      cmdTbrSave(screen, "cmdTbr_2", "", "Save"),
      cmdTbrRefresh(screen, "cmdTbr_3", "", "Refresh"),
      cmdTbrFind(screen, "cmdTbr_9", "", "Search"),
      cmdTbrDelete(screen, "cmdTbr_11", "", "Delete"),
      mnuPopUp(screen, "mnuPopUp", "Popup", true),
      mnuPoSortAsc(mnuPopUp, "mnuPoSortAsc", "Sort ascending"),
      mnuPoSortDesc(mnuPopUp, "mnuPoSortDesc", "Sort descending") {
  mnuPopUp.SetVisible(false);
  ShowBrowsing();
}

void PeopleToolBar::EnableSave(bool enabled) {
  cmdTbrSave.SetEnabled(enabled);
  for (Command* other : {&cmdTbrNew, &cmdTbrFind, &cmdTbrDelete, &cmdTbrImport, &cmdTbrRefresh}) {
    other->SetEnabled(!enabled);
  }
}

PeopleButtons::PeopleButtons(Screen& screen)
    : cmdAdd(screen, "cmdAdd", "&Add"),
      cmdApply(screen, "cmdApply", "&Apply"),
      cmdOK(screen, "cmdOK", "&OK"),
      cmdClose(screen, "cmdClose", "Close") {
  cmdApply.SetEnabled(false);
}

}  // namespace lorvane

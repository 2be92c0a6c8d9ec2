#pragma once

#include "screen/Buttons.h"
#include "screen/Menu.h"

namespace lorvane {

/// The payment window's tool bar, menus and pop-up menu. Entries of one name do the same thing.
struct PaymentMenus {
  explicit PaymentMenus(Screen& screen);

  Frame picTbrMain;
  Command cmdTbrSave;
  Command cmdTbrRefresh;
  Command cmdTbrCalculator;
  Command cmdTbrPost;
  Command cmdTbrUndo;
  Command cmdTbrFind;
  Command cmdTbrCancel;

  MenuEntry mnuFile;
  MenuEntry mnuFSave;
  MenuEntry mnuFEmployees;
  MenuEntry mnuFSubContractors;
  MenuEntry mnuFCompanyInfo;
  MenuEntry mnuFRemittanceCalc;
  MenuEntry mnuFClose;
  MenuEntry mnuEdit;
  MenuEntry mnuEUndo;
  MenuEntry mnuERefresh;
  MenuEntry mnuESelectAll;
  MenuEntry mnuEFind;
  MenuEntry mnuView;
  MenuEntry mnuVToolbar;
  MenuEntry mnuHelp;
  MenuEntry mnuHContents;
  MenuEntry mnuHabout;

  MenuEntry mnuPopUp;
  MenuEntry mnuPOPostPayments;
  MenuEntry mnuPoUndo;
  MenuEntry mnuPoRefresh;
  MenuEntry mnuPoSave;
  MenuEntry mnuPoRemittanceCalc;
  MenuEntry mnuPoSelectAll;
  MenuEntry mnuPoFind;
  MenuEntry mnuPoHelp;

  /// Flips the six entries that follow the state of editing: Save, Undo and Refresh of menu and
  /// pop-up.
  void ToggleEditMenus();
};

}  // namespace lorvane

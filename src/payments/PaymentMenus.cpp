#include "payments/PaymentMenus.h"

namespace lorvane {

PaymentMenus::PaymentMenus(Screen& screen)
    : picTbrMain(screen, "picTbrMain"),
      cmdTbrSave(screen, "cmdTbr_2", "", "Save"),
      cmdTbrRefresh(screen, "cmdTbr_3", "", "Refresh"),
      cmdTbrCalculator(screen, "cmdTbr_4", "", "Calculator"),
      cmdTbrPost(screen, "cmdTbr_5", "", "Post"),
      cmdTbrUndo(screen, "cmdTbr_6", "", "Undo last"),
      cmdTbrFind(screen, "cmdTbr_9", "", "Search"),
      cmdTbrCancel(screen, "cmdTbr_11", "", "Cancel current assessment"),
      mnuFile(screen, "mnuFile", "&File"),
      mnuFSave(mnuFile, "mnuFSave", "&Save", "Ctrl+S"),
      mnuFEmployees(mnuFile, "mnuFEmployees", "E&mployees", "F3"),
      mnuFSubContractors(mnuFile, "mnuFSubContractors", "S&ub-Contractors", "F2"),
      mnuFCompanyInfo(mnuFile, "mnuFCompanyInfo", "Company &Information", "F4"),
      mnuFRemittanceCalc(mnuFile, "mnuFRemittanceCalc", "&Remittance Reports"),
      mnuFClose(mnuFile, "mnuFClose", "&Close"),
      mnuEdit(screen, "mnuEdit", "&Edit"),
      mnuEUndo(mnuEdit, "mnuEUndo", "&Undo", "Ctrl+Z"),
      mnuERefresh(mnuEdit, "mnuERefresh", "&Refresh", "F5"),
      mnuESelectAll(mnuEdit, "mnuESelectAll", "Select &All", "Ctrl+A"),
      mnuEFind(mnuEdit, "mnuEFind", "&Find...", "Ctrl+F"),
      mnuView(screen, "mnuView", "&View"),
      mnuVToolbar(mnuView, "mnuVToolbar", "&Toolbar"),
      mnuHelp(screen, "mnuHelp", "&Help"),
      mnuHContents(mnuHelp, "mnuHContents", "&Contents..."),
      mnuHabout(mnuHelp, "mnuHabout", "&About..."),
      mnuPopUp(screen, "mnuPopUp", "Payments", true),
      mnuPOPostPayments(mnuPopUp, "mnuPOPostPayments", "&Post Payments"),
      mnuPoUndo(mnuPopUp, "mnuPoUndo", "&Undo"),
      mnuPoRefresh(mnuPopUp, "mnuPoRefresh", "&Refresh"),
      mnuPoSave(mnuPopUp, "mnuPoSave", "&Save"),
      mnuPoRemittanceCalc(mnuPopUp, "mnuPoRemittanceCalc", "Remittance R&eports"),
      mnuPoSelectAll(mnuPopUp, "mnuPoSelectAll", "Select &All"),
      mnuPoFind(mnuPopUp, "mnuPoFind", "&Find..."),
      mnuPoHelp(mnuPopUp, "mnuPoHelp", "&Help") {
  mnuPopUp.SetVisible(false);
  mnuVToolbar.SetChecked(true);
  for (Control* control : {static_cast<Control*>(&cmdTbrSave), static_cast<Control*>(&cmdTbrUndo),
                           static_cast<Control*>(&mnuFSave), static_cast<Control*>(&mnuPoSave),
                           static_cast<Control*>(&mnuEUndo), static_cast<Control*>(&mnuPoUndo)}) {
    control->SetEnabled(false);
  }
}

void PaymentMenus::ToggleEditMenus() {
  for (MenuEntry* entry :
       {&mnuFSave, &mnuPoSave, &mnuEUndo, &mnuPoUndo, &mnuERefresh, &mnuPoRefresh}) {
    entry->SetEnabled(!entry->Enabled());
  }
}

}  // namespace lorvane

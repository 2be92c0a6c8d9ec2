#include "desktop/windows/WindowRegistry.h"

#include "basic/RuntimeError.h"
#include "desktop/windows/AboutWindow.h"
#include "desktop/windows/AddContractWindow.h"
#include "desktop/windows/AssetsWindow.h"
#include "desktop/windows/BirthDateWindow.h"
#include "desktop/windows/CheckListWindow.h"
#include "desktop/windows/CompanyWindow.h"
#include "desktop/windows/ContractsWindow.h"
#include "desktop/windows/EmployeesWindow.h"
#include "desktop/windows/ImportExistingWindow.h"
#include "desktop/windows/ImportHelpWindow.h"
#include "desktop/windows/ImportWindow.h"
#include "desktop/windows/OptionsWindow.h"
#include "desktop/windows/PaymentListWindow.h"
#include "desktop/windows/PaymentWindow.h"
#include "desktop/windows/RemittanceWindow.h"
#include "desktop/windows/ReportWindow.h"
#include "desktop/windows/SelectDateWindow.h"
#include "desktop/windows/SicWindow.h"
#include "desktop/windows/SubContractorWindow.h"
#include "reports/RemittanceViewer.h"
#include "reports/frmReports.h"
#include "screen/Screen.h"

namespace lorvane {

std::unique_ptr<ScreenDialog> WindowRegistry::Make(Screen& screen, ScreenGate& gate,
                                                   QWidget* parent) const {
  const auto found = makers_.find(screen.Name());
  if (found == makers_.end()) {
    throw RuntimeError(error_number::kInternalError, screen.Name() + " has no window.");
  }
  std::unique_ptr<ScreenDialog> window = found->second(screen, gate, parent);
  window->Complete();
  return window;
}

std::vector<std::string> WindowRegistry::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, maker] : makers_) {
    names.push_back(name);
  }
  return names;
}

WindowRegistry AllWindows() {
  WindowRegistry windows;
  windows.Add<frmCheckList, CheckListWindow>("frmCheckList");
  windows.Add<frmCompany, CompanyWindow>("frmCompany");
  windows.Add<frmSIC, SicWindow>("frmSIC");
  windows.Add<frmEmployees, EmployeesWindow>("frmEmployees");
  windows.Add<frmSubContractor, SubContractorWindow>("frmSubContractor");
  windows.Add<frmBirthDate, BirthDateWindow>("frmBirthDate");
  windows.Add<frmContracts, ContractsWindow>("frmContracts");
  windows.Add<frmAddContract, AddContractWindow>("frmAddContract");
  windows.Add<frmOptions, OptionsWindow>("frmOptions");
  windows.Add<frmAssets, AssetsWindow>("frmAssets");
  windows.Add<frmImport, ImportWindow>("frmImport");
  windows.Add<frmImportHlp, ImportHelpWindow>("frmImportHlp");
  windows.Add<frmImportExisting, ImportExistingWindow>("frmImportExisting");
  windows.Add<frmAbout, AboutWindow>("frmAbout");
  windows.Add<frmSelectAssessment, PaymentListWindow>("frmSelectAssessment");
  windows.Add<frmPayment, PaymentWindow>("frmPayment");
  windows.Add<frmSelectDate, SelectDateWindow>("frmSelectDate");
  windows.Add<frmRemittanceCalc, RemittanceWindow>("frmRemittanceCalc");
  windows.Add<frmrptEmp, ReportWindow>("frmrptEmp");
  windows.Add<frmRptSub, ReportWindow>("frmRptSub");
  windows.Add<frmSubQtrSumm, ReportWindow>("frmSubQtrSumm");
  windows.Add<frmReports, ReportWindow>("frmReports");
  return windows;
}

}  // namespace lorvane

#include "shell/modLorvane.h"

#include <filesystem>
#include <utility>

#include "basic/RuntimeError.h"
#include "company/frmCheckList.h"
#include "company/frmCompany.h"
#include "employer/frmAssets.h"
#include "employer/frmOptions.h"
#include "import/frmImport.h"
#include "import/frmImportExisting.h"
#include "import/frmImportHlp.h"
#include "payments/frmPayment.h"
#include "payments/frmSelectAssessment.h"
#include "payments/frmSelectDate.h"
#include "people/frmContracts.h"
#include "people/frmEmployees.h"
#include "people/frmSubContractor.h"
#include "reports/RemittanceViewer.h"
#include "reports/frmRemittanceCalc.h"
#include "reports/frmReports.h"
#include "screen/modForm.h"
#include "shell/frmAbout.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace lorvane {

std::unique_ptr<Session> Main(DataEnvironment environment, Files& files) {
  auto session = std::make_unique<Session>(std::move(environment), files);
  session->gDataConn->SetProviderConst(DataConnection::kJet);
  session->gDataConn->Password = kDataFilePassword;
  return session;
}

ScreenRegistry AllScreens() {
  ScreenRegistry registry;
  registry.Add<frmSplash>("frmSplash");
  registry.Add<frmMain>("frmMain");
  registry.Add<frmAbout>("frmAbout");

  registry.Add<frmCompany>("frmCompany");
  registry.Add<frmCheckList>("frmCheckList");
  registry.Add<frmSelectAssessment>("frmSelectAssessment");
  registry.Add<frmEmployees>("frmEmployees");
  registry.Add<frmSubContractor>("frmSubContractor");
  registry.Add<frmContracts>("frmContracts");
  registry.Add<frmOptions>("frmOptions");
  registry.Add<frmAssets>("frmAssets");
  registry.Add<frmRemittanceCalc>("frmRemittanceCalc");
  registry.Add<frmrptEmp>("frmrptEmp");
  registry.Add<frmRptSub>("frmRptSub");
  registry.Add<frmSubQtrSumm>("frmSubQtrSumm");
  registry.Add<frmReports>("frmReports");
  registry.Add<frmImport>("frmImport");
  registry.Add<frmImportHlp>("frmImportHlp");
  registry.Add<frmImportExisting>("frmImportExisting");
  return registry;
}

void ShutDown(ScreenContext context, int exitStatus) {
  context.session.gDataConn->DataClose();
  throw ProgramEnded{exitStatus};
}

void EndOnUnhandledError(ScreenContext context, const RuntimeError& error) {
  context.session.gDataConn->DataClose();
  context.services.SetPointer(pointer::kDefault);
  ShowError(context, error, box::kCritical);
  throw ProgramEnded{1};
}

std::string ProgramFolder() {
  namespace fs = std::filesystem;
  std::error_code ignored;
  const fs::path own = fs::read_symlink("/proc/self/exe", ignored).parent_path();
  if (fs::exists(own / "Resource", ignored)) {
    return own.string();
  }
  return (own.parent_path() / "share" / "lorvane").string();
}

}  // namespace lorvane

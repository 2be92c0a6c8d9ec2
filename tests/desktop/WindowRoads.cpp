#include "WindowRoads.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QTest>
#include <QTreeView>

namespace lorvane {
namespace {

using Walk = std::function<void(DesktopRun&, const WindowWork&)>;

// Leaves a window as the mouse does.
WindowWork Closing(const WindowWork& work) {
  return [work](QWidget& window) {
    work(window);
    window.close();
  };
}

WindowWork Press(const char* button) {
  return Closing([button](QWidget& window) { Part<QAbstractButton>(window, button).click(); });
}

// The window opens from the menu.
Walk Straight(const char* window) {
  return [window](DesktopRun& run, const WindowWork& work) {
    run.In(QLatin1String(window), Closing(work));
  };
}

// The window opens by a button of the one that opens from the menu.
Walk Through(const char* first, const char* button, const char* window) {
  return [=](DesktopRun& run, const WindowWork& work) {
    run.In(QLatin1String(first), Press(button));
    run.In(QLatin1String(window), Closing(work));
  };
}

void ShowRoofers(QWidget& window) {
  auto& industries = Part<QListWidget>(window, "lstIndustries");
  industries.setCurrentRow(0);
  auto& payments = Part<QTreeView>(window, "lvwPayments");
  payments.setCurrentIndex(payments.model()->index(1, 1));
}

void WalkToBirthDate(DesktopRun& run, const WindowWork& work) {
  run.In(QStringLiteral("frmEmployees"), Press("cmdBirth"));
  run.In(QStringLiteral("frmBirthDate"), Closing(work));
  // Closed without a date, the date is gone.
  run.Answer(QStringLiteral("Employees on File"), QString(), QStringLiteral("No"));
}

void WalkToPayment(DesktopRun& run, const WindowWork& work) {
  run.In(QStringLiteral("frmSelectAssessment"), Closing([](QWidget& window) {
           ShowRoofers(window);
           QTest::keyClick(&Part<QTreeView>(window, "lvwPayments"), Qt::Key_Return);
         }));
  run.In(QStringLiteral("frmPayment"), Closing(work));
  run.Answer(QStringLiteral("Save"), QString(), QStringLiteral("No"));
}

void WalkToPostingDate(DesktopRun& run, const WindowWork& work) {
  run.In(QStringLiteral("frmSelectAssessment"), Closing([](QWidget& window) {
           ShowRoofers(window);
           Part<QAbstractButton>(window, "cmdTbr_5").click();
         }));
  run.Answer(QStringLiteral("Post"), QString(), QStringLiteral("Yes"));
  run.In(QStringLiteral("frmSelectDate"), Closing(work));
  run.Answer(QStringLiteral("Save"), QString(), QStringLiteral("No"));
}

}  // namespace

const std::vector<WindowRoad>& WindowRoads() {
  static const std::vector<WindowRoad> kRoads{
      {"frmCheckList", "mnuFNewCompany", {}},
      {"frmCompany", "mnuFUserSettings", Straight("frmCompany")},
      {"frmSIC", "mnuFUserSettings", Through("frmCompany", "cmdRates_0", "frmSIC")},
      {"frmEmployees", "mnuFEmployees", Straight("frmEmployees")},
      {"frmBirthDate", "mnuFEmployees", WalkToBirthDate},
      {"frmSubContractor", "mnuFSubContractors", Straight("frmSubContractor")},
      {"frmContracts", "mnuFContractTypes", Straight("frmContracts")},
      {"frmAddContract", "mnuFContractTypes", Through("frmContracts", "cmdAdd", "frmAddContract")},
      {"frmOptions", "mnuFEmployerUpdate", Straight("frmOptions")},
      {"frmAssets", "mnuFAssetLog", Straight("frmAssets")},
      {"frmImport", "mnuFIEmployees", Straight("frmImport")},
      {"frmImport", "mnuFISExcel", Straight("frmImport"), "SubContractors"},
      {"frmImportHlp", "mnuFIEmployees", Through("frmImport", "cmdHlpExcel", "frmImportHlp")},
      {"frmImportExisting", "mnuFISCompany", Straight("frmImportExisting")},
      {"frmAbout", "mnuHabout", Straight("frmAbout")},
      {"frmSelectAssessment", "mnuFEnterPayments", Straight("frmSelectAssessment")},
      {"frmPayment", "mnuFEnterPayments", WalkToPayment},
      {"frmSelectDate", "mnuFEnterPayments", WalkToPostingDate},
      {"frmRemittanceCalc", "mnuRREmpRemitt", Straight("frmRemittanceCalc")},
      {"frmRemittanceCalc", "mnuREmployerYEUpdate", Straight("frmRemittanceCalc"), "YearEnd"},
      {"frmrptEmp", "mnuRREmpRemitt", Through("frmRemittanceCalc", "cmdOK", "frmrptEmp")},
      {"frmRptSub", "mnuRRSubConRemitt",
       [](DesktopRun& run, const WindowWork& work) {
         run.In(QStringLiteral("frmRemittanceCalc"), Closing([](QWidget& window) {
                  Part<QAbstractButton>(window, "optSubContractor").click();
                  Part<QAbstractButton>(window, "cmdOK").click();
                }));
         run.In(QStringLiteral("frmRptSub"), Closing(work));
       }},
      {"frmSubQtrSumm", "mnuRRQSubCon",
       Through("frmRemittanceCalc", "cmdSummary", "frmSubQtrSumm")},
      {"frmReports", "mnuRClearance", Straight("frmReports")},
  };
  return kRoads;
}

void Visit(DesktopRun& run, const WindowRoad& road, const WindowWork& work) {
  run.OpenCompany();
  if (road.walk) {
    road.walk(run, work);
    run.Choose(road.entry);
  } else {
    run.Choose(road.entry);
    work(Part(run.Main(), road.window.c_str()));
  }
}

void PrintTo(const WindowRoad& road, std::ostream* out) { *out << road.window << road.face; }

}  // namespace lorvane

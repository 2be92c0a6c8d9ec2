#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "DesktopRun.h"

namespace lorvane {
namespace {

void Type(QWidget& window, const char* field, const char* text) {
  auto& edit = Part<QLineEdit>(window, field);
  edit.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&edit, QLatin1String(text));
}

// Asks for a report of the year and finds texts in it.
void ExpectReported(DesktopRun& run, const char* entry, const QStringList& texts) {
  run.In(QStringLiteral("frmRemittanceCalc"), [](QWidget& window) {
    QTest::mouseClick(&Part<QPushButton>(window, "cmdOK"), Qt::LeftButton);
  });
  run.In(QStringLiteral("frmReports"), [&texts](QWidget& window) {
    auto& wanted = Part<QLineEdit>(window, "reportSearch");
    for (const QString& text : texts) {
      wanted.setText(text);
      QTest::keyClick(&wanted, Qt::Key_Return);
      EXPECT_FALSE(Part<QLabel>(window, "reportNotFound").isVisible()) << text.toStdString();
    }
    window.close();
  });
  run.In(QStringLiteral("frmRemittanceCalc"), [](QWidget& window) { window.close(); });
  run.Choose(entry);
}

// What is entered for the board arrives on the reports.
TEST(EmployerWindows, FromTheOptionsToTheReports) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmOptions"), [&](QWidget& window) {
    auto& pages = Part<QTabWidget>(window, "sstOptions");
    Part<QLineEdit>(window, "txtClaimName").selectAll();
    Type(window, "txtClaimName", "Ada Claimsworth");
    QTest::keyClick(&Focused(window), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(&Focused(window), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages.currentIndex(), 2);
    auto& people = Part<QListWidget>(window, "lstPrincipals");
    const int before = people.count();
    QTest::mouseClick(&Part<QPushButton>(window, "cmdAdd"), Qt::LeftButton);
    Type(window, "txtPrincipalLastName", "Newcomer");
    Type(window, "txtTitle", "Partner");
    QTest::mouseClick(&Part<QPushButton>(window, "cmdSave"), Qt::LeftButton);
    EXPECT_EQ(people.count(), before + 1);
    // Options are saved whatever way the window is left.
    window.close();
  });
  run.Choose("mnuFEmployerUpdate");
  ExpectReported(run, "mnuREmployerYEUpdate", {"Ada Claimsworth", "For the Year 2025"});
  ExpectReported(run, "mnuRPrincipalReport", {"Newcomer", "Partner", "For the 2025 Year"});
}

TEST(EmployerWindows, FromTheAssetsToTheirLog) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmAssets"), [&](QWidget& window) {
    QTest::mouseClick(&Part<QPushButton>(window, "cmdAdd"), Qt::LeftButton);
    Type(window, "txtDescription", "Survey drone");
    EXPECT_FALSE(Part<QLineEdit>(window, "txtMake").isEnabled());
    Part<QCheckBox>(window, "chkVehicle").click();
    EXPECT_EQ(Focused(window).objectName(), QStringLiteral("txtMake"));
    QTest::keyClicks(&Focused(window), "Skyhook");
    run.Answer(QStringLiteral("Save"), QStringLiteral("There is unsaved information."),
               QStringLiteral("Yes"));
    window.close();
  });
  run.Choose("mnuFAssetLog");
  ExpectReported(run, "mnuRAssetLog", {"Survey drone", "Skyhook"});
}

}  // namespace
}  // namespace lorvane

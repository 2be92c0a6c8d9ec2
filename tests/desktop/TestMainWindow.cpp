#include <gtest/gtest.h>

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMessageBox>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

#include "DesktopRun.h"
#include "Version.h"

namespace lorvane {
namespace {

const QString kTitle = QStringLiteral("Lorvane Assessment for Windows %1").arg(kVersionText);

TEST(MainWindow, FollowsTheCompanyThatIsOpened) {
  DesktopRun run;
  EXPECT_EQ(run.Main().windowTitle(), kTitle + " <No Company Selected>");
  EXPECT_FALSE(Part<QAction>(run.Main(), "mnuFEnterPayments").isEnabled());
  EXPECT_FALSE(Part(run.Main(), "start_mnuFEnterPayments").isVisible());
  run.OpenCompany();
  EXPECT_EQ(run.Main().windowTitle(), kTitle + " for: Fundy Ridge Builders Limited");
  EXPECT_EQ(Part<QLabel>(run.Main(), "sbrMain_Msg").text(), run.Main().windowTitle());
  EXPECT_TRUE(Part<QAction>(run.Main(), "mnuFEnterPayments").isEnabled());
  EXPECT_TRUE(Part(run.Main(), "start_mnuFEnterPayments").isVisible());

  // A dialog that is cancelled leaves title and menu, and a connection that is closed.
  run.In(QStringLiteral("Data Location"), [](QWidget& dialog) { dialog.close(); });
  run.Choose("mnuFOpenCompany");
  EXPECT_EQ(run.Main().windowTitle(), kTitle + " for: Fundy Ridge Builders Limited");
  EXPECT_TRUE(Part<QAction>(run.Main(), "mnuFEnterPayments").isEnabled());
  EXPECT_FALSE(run.Program().GetSession().gDataConn->IsOpen());
}

TEST(MainWindow, ShowsAClosedYearOnWhiteWithTheReducedMenu) {
  DesktopRun run;
  run.SetIni("DataBase", "YE", "1");
  run.ChooseFile(QStringLiteral("Data Location"), run.DataFile());
  run.Answer(QStringLiteral("Year End Files"),
             QStringLiteral("Please note that you have opened a \nyear end file."),
             QStringLiteral("OK"));
  run.Choose("mnuFOpenCompany");
  EXPECT_EQ(Part<QMdiArea>(run.Main(), "ground").background().color(), QColor(Qt::white));
  for (const char* off : {"mnuFEnterPayments", "mnuFEmployees", "mnuFYEProcedure", "mnuFImport"}) {
    EXPECT_FALSE(Part<QAction>(run.Main(), off).isEnabled()) << off;
  }
  EXPECT_TRUE(Part<QAction>(run.Main(), "mnuFAssetLog").isEnabled());
  EXPECT_TRUE(Part<QAction>(run.Main(), "mnuReports").isVisible());
}

TEST(MainWindow, AnErrorThatNobodyHandlesEndsTheProgramWithItsBox) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmSelectAssessment"), [&](QWidget& window) {
    // Posting with no industry chosen.
    run.Answer(QStringLiteral("Error"), QStringLiteral("9"), QStringLiteral("OK"));
    Part<QToolButton>(window, "cmdTbr_5").click();
  });
  run.Choose("mnuFEnterPayments");
  EXPECT_EQ(run.Program().ExitStatus(), 1);
  EXPECT_FALSE(run.Program().GetSession().gDataConn->IsOpen());
}

TEST(MainWindow, ExitEndsTheProgramAndClosesTheFile) {
  DesktopRun run;
  run.OpenCompany();
  run.Main().close();
  EXPECT_EQ(run.Program().ExitStatus(), 0);
  EXPECT_FALSE(run.Program().GetSession().gDataConn->IsOpen());
}

TEST(MainWindow, HelpIsFoundByWordsAndAboutTellsTheVersion) {
  DesktopRun run;
  run.In(QStringLiteral("frmAbout"), [](QWidget& dialog) {
    EXPECT_EQ(Part<QLabel>(dialog, "lblAppVersion").text(),
              QStringLiteral("Version: %1").arg(kVersionText));
    QTest::keyClick(&Focused(dialog), Qt::Key_Escape);
  });
  run.Choose("mnuHabout");

  run.Choose("mnuHContents");
  QWidget* help = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    help = window->objectName() == QLatin1String("helpWindow") ? window : help;
  }
  ASSERT_NE(help, nullptr);
  auto& contents = Part<QTreeWidget>(*help, "helpContents");
  const int pages = contents.topLevelItemCount();
  EXPECT_GE(pages, 6);
  QTest::keyClicks(&Part<QLineEdit>(*help, "helpSearch"), "white background");
  EXPECT_GE(contents.topLevelItemCount(), 1);
  EXPECT_LT(contents.topLevelItemCount(), pages);
}

}  // namespace
}  // namespace lorvane

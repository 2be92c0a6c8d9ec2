#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

#include "DesktopRun.h"

namespace lorvane {
namespace {

void Press(QWidget& window, const char* keys) {
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keySequence(&window, QKeySequence(QLatin1String(keys)));
}

// The list of industries with the keyboard, then OK.
void AskForAll(QWidget& window) {
  auto& industries = Part<QComboBox>(window, "cboIndustries");
  QTest::keyClick(&industries, Qt::Key_End);
  EXPECT_EQ(industries.currentText(), QStringLiteral("(All)"));
  QTest::keyClick(&industries, Qt::Key_Return);
}

// A year's report from the menu to the saved file, with the keyboard.
TEST(ReportWindows, ShowFindZoomAndExport) {
  DesktopRun run;
  run.SetIni("Remittance", "From", "1/1/2026");
  run.SetIni("Remittance", "To", "12/31/2026");
  run.OpenCompany();
  const QString file = QFileInfo(QString::fromStdString(run.DataFile())).path() + "/filed";

  run.In(QStringLiteral("frmRemittanceCalc"), AskForAll);
  run.In(QStringLiteral("frmrptEmp"), [&](QWidget& window) {
    auto& page = Part<QSpinBox>(window, "reportPage");
    auto& bar = *window.findChild<QAbstractScrollArea*>()->verticalScrollBar();
    EXPECT_EQ(page.text(), QStringLiteral("1 of 9"));
    Press(window, "Ctrl+PgDown");
    EXPECT_EQ(page.value(), 2);
    EXPECT_GT(bar.value(), 0);
    Press(window, "Ctrl+End");
    EXPECT_EQ(page.value(), 9);
    // Scrolling by hand turns the page number, too.
    bar.setValue(0);
    EXPECT_EQ(page.value(), 1);

    Press(window, "Ctrl+F");
    auto& wanted = Part<QLineEdit>(window, "reportSearch");
    EXPECT_TRUE(wanted.hasFocus());
    QTest::keyClicks(&wanted, "total of 4");
    QTest::keyClick(&wanted, Qt::Key_Return);
    EXPECT_EQ(page.value(), 9);
    EXPECT_FALSE(Part<QLabel>(window, "reportNotFound").isVisible());
    QTest::keyClicks(&wanted, "no such text");
    QTest::keyClick(&wanted, Qt::Key_Return);
    EXPECT_TRUE(Part<QLabel>(window, "reportNotFound").isVisible());

    const int whole = bar.maximum();
    Press(window, "Ctrl+-");
    EXPECT_EQ(Part<QSpinBox>(window, "reportZoom").value(), 75);
    EXPECT_LT(bar.maximum(), whole);

    // A name without an ending gets that of the kind chosen, the first.
    Press(window, "Ctrl+S");
    EXPECT_GT(QFileInfo(file + ".pdf").size(), 10000);
    Press(window, "Esc");
  });
  run.In(QStringLiteral("Export Report"), [&](QWidget& dialog) {
    auto& name = Part<QLineEdit>(dialog, "fileNameEdit");
    name.setText(file);
    QTest::keyClick(&name, Qt::Key_Return);
  });
  run.In(QStringLiteral("frmRemittanceCalc"),
         [](QWidget& window) { QTest::keyClick(&Focused(window), Qt::Key_Escape); });
  run.Choose("mnuRREmpRemitt");
  EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblEmpRemittance"), "0");
}

// What the user didn't ask for isn't there.
TEST(ReportWindows, HaveTheButtonsThatWereChosen) {
  DesktopRun run;
  for (const char* option : {"Export", "Nav", "Search", "Zoom"}) {
    run.SetIni("Remittance", option, "0");
  }
  run.OpenCompany();
  run.In(QStringLiteral("frmRemittanceCalc"), [](QWidget& window) {
    QTest::mouseClick(&Part<QPushButton>(window, "cmdSummary"), Qt::LeftButton);
  });
  run.In(QStringLiteral("frmSubQtrSumm"), [](QWidget& window) {
    EXPECT_EQ(window.windowTitle(),
              QStringLiteral("Annual Quarterly Sub-Contractor Remittance Summary"));
    for (const char* hidden : {"report.export", "report.first", "reportPage", "reportSearch",
                               "reportZoom", "report.zoomIn"}) {
      EXPECT_FALSE(Part<QWidget>(window, hidden).isVisible()) << hidden;
    }
    for (const char* shown : {"report.refresh", "report.print"}) {
      EXPECT_TRUE(Part<QWidget>(window, shown).isVisible()) << shown;
    }
    Press(window, "Esc");
  });
  run.In(QStringLiteral("frmRemittanceCalc"),
         [](QWidget& window) { QTest::keyClick(&Focused(window), Qt::Key_Escape); });
  run.Choose("mnuRRSubConRemitt");
}

TEST(ReportWindows, AskForTheYearOfAnEmployersReport) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmRemittanceCalc"), [](QWidget& window) {
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Employer Year-end Update"));
    EXPECT_TRUE(Part<QWidget>(window, "fraYearEnd").isVisible());
    EXPECT_FALSE(Part<QWidget>(window, "fraSelection").isVisible());
    QTest::keyClick(&Part<QWidget>(window, "chkEmployerName"), Qt::Key_Space);
    QTest::keyClick(&Part<QWidget>(window, "cboYear"), Qt::Key_Return);
  });
  run.In(QStringLiteral("frmReports"), [](QWidget& window) { Press(window, "Esc"); });
  run.In(QStringLiteral("frmRemittanceCalc"),
         [](QWidget& window) { QTest::keyClick(&Focused(window), Qt::Key_Escape); });
  run.Choose("mnuREmployerYEUpdate");
}

}  // namespace
}  // namespace lorvane

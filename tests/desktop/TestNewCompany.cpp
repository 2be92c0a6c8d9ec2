#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include "DesktopRun.h"

namespace lorvane {
namespace {

// Types into fields that follow one another; Enter leads from each to the next.
void TypeOn(QWidget& window, const char* field, std::initializer_list<const char*> texts) {
  Part<QLineEdit>(window, field).setFocus(Qt::TabFocusReason);
  for (const char* text : texts) {
    QTest::keyClicks(&Focused(window), QLatin1String(text));
    QTest::keyClick(&Focused(window), Qt::Key_Return);
  }
}

void Click(QWidget& window, const char* button) {
  QTest::mouseClick(&Part<QWidget>(window, button), Qt::LeftButton);
}

QWidget& CheckList(DesktopRun& run) { return Part<QWidget>(run.Main(), "frmCheckList"); }

bool IsDone(DesktopRun& run, const char* step) {
  return Part<QLabel>(CheckList(run), step).font().strikeOut();
}

void MakeFiles(DesktopRun& run, const QString& folder) {
  QDir().mkdir(folder);
  run.Choose("mnuFNewCompany");
  run.In(QStringLiteral("New Company Location"), [&](QWidget& dialog) {
    Part<QLineEdit>(dialog, "fileNameEdit").setText(folder + "/Books");
    QMetaObject::invokeMethod(&dialog, "accept");
  });
  Click(CheckList(run), "cmdCompanyDataFiles");
  EXPECT_TRUE(QFileInfo::exists(folder + "/Books.mdb"));
  EXPECT_TRUE(IsDone(run, "lblCompanyDataFiles"));
}

// The first industry comes from the published rates, and gets a name of the user's.
void EnterCompany(DesktopRun& run) {
  run.In(QStringLiteral("frmCompany"), [](QWidget& window) {
    TypeOn(window, "txtBusNum", {"123456789", "NW", "Test Roofing Ltd"});
    // Also from a list that takes letters for a search.
    Part<QWidget>(window, "cboProvinces").setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Focused(window), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(Part<QTabWidget>(window, "sstCompany").currentIndex(), 1);
    Click(window, "cmdRates_0");
    EXPECT_TRUE(Part<QCheckBox>(window, "chkIndA").isChecked());
    EXPECT_EQ(Part<QLineEdit>(window, "txtRateA").text(), QStringLiteral("6.27"));
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Part<QWidget>(window, "chkIndA").setFocus(Qt::TabFocusReason);
    QTest::keyClick(&window, Qt::Key_F2);
    // An "&" of the name is no mark of a key.
    EXPECT_TRUE(Part<QCheckBox>(window, "chkIndA").text().contains(QLatin1String("&& ")));
    Click(window, "cmdOK");
  });
  run.In(QStringLiteral("frmSIC"), [](QWidget& window) {
    auto& rates = Part<QTreeView>(window, "lvwSic");
    EXPECT_GT(rates.model()->rowCount(), 10);
    QTest::keyClicks(&Part<QLineEdit>(window, "txtSIC"), "3040");
    QTest::keyClick(&Part<QLineEdit>(window, "txtSIC"), Qt::Key_Return);
    EXPECT_EQ(&Focused(window), &rates);
    EXPECT_EQ(rates.currentIndex().siblingAtColumn(0).data().toString(), QStringLiteral("3040"));
    Click(window, "cmdOK");
  });
  run.In(QStringLiteral("Description"), [](QWidget& dialog) {
    auto& name = Part<QLineEdit>(dialog, "txtInput");
    EXPECT_TRUE(name.hasSelectedText());
    QTest::keyClicks(&name, "Roofs & gutters");
    QTest::keyClick(&name, Qt::Key_Return);
  });
  run.Answer(QStringLiteral("Company Properties"), QStringLiteral("Your information has changed."),
             QStringLiteral("Yes"));
  Click(CheckList(run), "cmdCompanyInfo");
  EXPECT_TRUE(IsDone(run, "lblCompanyInfo"));
}

// Nobody yet: the window opens on a new one, which is left alone.
void PassSubContractors(DesktopRun& run) {
  run.In(QStringLiteral("frmSubContractor"), [](QWidget& window) { window.close(); });
  run.Answer(QStringLiteral("Sub-Contractors on File"),
             QStringLiteral("Your information has changed."), QStringLiteral("No"));
  Click(CheckList(run), "cmdSubContractors");
}

void EnterEmployee(DesktopRun& run) {
  run.In(QStringLiteral("frmEmployees"), [](QWidget& window) {
    TypeOn(window, "txtFirstName", {"Ann"});
    TypeOn(window, "txtLastName", {"Archer"});
    Part<QCheckBox>(window, "chkIndA").click();
    Click(window, "cmdApply");
    EXPECT_EQ(Part<QListWidget>(window, "lstEmployees").count(), 1);
    Click(window, "cmdOK");
  });
  Click(CheckList(run), "cmdEmployees");
  EXPECT_TRUE(IsDone(run, "lblEmployees"));
  Click(CheckList(run), "cmdOK");
}

void Pay(DesktopRun& run) {
  run.In(QStringLiteral("frmSelectAssessment"), [&](QWidget& window) {
    auto& industries = Part<QListWidget>(window, "lstIndustries");
    auto& list = Part<QTreeView>(window, "lvwPayments");
    industries.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&industries, Qt::Key_Down);
    ASSERT_EQ(list.model()->rowCount(), 1);
    list.setFocus(Qt::TabFocusReason);
    run.In(QStringLiteral("frmPayment"), [](QWidget& dialog) {
      QTest::keyClicks(&Focused(dialog), "1234.5");
      QTest::keyClick(&Focused(dialog), Qt::Key_Return);
    });
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    Click(window, "cmdTbr_2");
    list.selectAll();
    run.Answer(QStringLiteral("Post"), QStringLiteral("You are about to post"),
               QStringLiteral("Yes"));
    // The first posting of all settles the year.
    run.In(QStringLiteral("Year"), [](QWidget& dialog) {
      QTest::keyClick(&Part<QLineEdit>(dialog, "txtInput"), Qt::Key_Return);
    });
    run.In(QStringLiteral("frmSelectDate"), [](QWidget& dialog) {
      Part<QCalendarWidget>(dialog, "calDate").setSelectedDate(QDate(2026, 11, 20));
      QTest::keyClick(&Focused(dialog), Qt::Key_Return);
    });
    Click(window, "cmdTbr_5");
    window.close();
  });
  run.Choose("mnuFEnterPayments");
}

TEST(NewCompany, FromAnEmptyFolderToTheFirstPaidEmployee) {
  DesktopRun run;
  const QString folder = QFileInfo(QString::fromStdString(run.DataFile())).path() + "/first";
  MakeFiles(run, folder);
  EnterCompany(run);
  PassSubContractors(run);
  EnterEmployee(run);
  EXPECT_TRUE(run.Main().windowTitle().endsWith(QStringLiteral(" for: Test Roofing Ltd")));
  EXPECT_EQ(run.First("SELECT LegalName FROM tblCompany"), "Test Roofing Ltd");
  Pay(run);
  EXPECT_EQ(run.First("SELECT AmountA FROM tblEmpHistory WHERE PayDateA = #11/20/2026#"), "1234.5");
  EXPECT_EQ(run.First("SELECT AssessRt FROM tblEmpHistory"), "6.27");
}

}  // namespace
}  // namespace lorvane

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include "DesktopRun.h"

namespace lorvane {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

std::vector<std::string> Entries(const QListWidget& list) {
  std::vector<std::string> texts(static_cast<std::size_t>(list.count()));
  for (int row = 0; row < list.count(); ++row) {
    texts.at(static_cast<std::size_t>(row)) = list.item(row)->text().toStdString();
  }
  return texts;
}

std::vector<std::string> VisibleButtons(const QWidget& main) {
  std::vector<std::string> names;
  for (const auto* button : main.findChildren<QToolButton*>()) {
    if (button->objectName().startsWith(QLatin1String("start_")) && button->isVisible()) {
      names.push_back(button->text().toStdString());
    }
  }
  return names;
}

TEST(Year, WithoutACompanyTheWaysToOneAreOffered) {
  DesktopRun run;
  EXPECT_THAT(VisibleButtons(run.Main()),
              ElementsAre("New Company", "Open Company", "Open the Sample", "Help"));
  EXPECT_FALSE(Part(run.Main(), "yearChart").isVisible());
  run.OpenCompany();
  EXPECT_THAT(VisibleButtons(run.Main()), Contains("Enter Payments"));
  EXPECT_THAT(VisibleButtons(run.Main()), Not(Contains("Open the Sample")));
  EXPECT_TRUE(Part(run.Main(), "yearChart").isVisible());
}

TEST(Year, TheSampleIsCopiedOnceAndOpened) {
  const TemporaryFolder home;
  const QByteArray before = qgetenv("HOME");
  qputenv("HOME", home.Path().c_str());
  const std::string copy = home.File("Lorvane Sample Company/Data.mdb");
  for (const bool first : {true, false}) {
    DesktopRun run;
    EXPECT_EQ(QFileInfo::exists(QString::fromStdString(copy)), !first);
    Part<QToolButton>(run.Main(), "start_sample").click();
    EXPECT_EQ(run.Program().GetSession().gDataConn->DataSource, copy);
    EXPECT_TRUE(run.Main().windowTitle().endsWith(QLatin1String("Fundy Ridge Builders Limited")));
    // What was done to the copy is still there the next time.
    EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblAssets") == "0", !first);
    run.Program().GetSession().gDataConn->Connection().Execute("DELETE FROM tblAssets");
  }
  qputenv("HOME", before);
}

TEST(Year, ShowsTheTotalsOfTheTablesAndWhatIsWaiting) {
  DesktopRun run;
  run.OpenCompany();
  const auto& totals = Part<QTreeWidget>(run.Main(), "yearTotals");
  ASSERT_EQ(totals.topLevelItemCount(), 4);
  EXPECT_EQ(totals.topLevelItem(0)->text(0), "A  Residential roofing");
  EXPECT_EQ(totals.topLevelItem(3)->text(1), "1,153,335.29");
  EXPECT_EQ(totals.topLevelItem(3)->text(2), "50,095.14");

  auto& work = Part<QListWidget>(run.Main(), "yearWork");
  EXPECT_THAT(Entries(work), Contains("MacDonald, Angus has reached the maximum of 76,300.00"));
  // Whoever saves and leaves the window finds it told.
  const std::vector<std::string> before = Entries(work);
  run.In(QStringLiteral("frmSelectAssessment"), [&](QWidget& window) {
    auto& industries = Part<QListWidget>(window, "lstIndustries");
    industries.setFocus();
    QTest::keyClick(&industries, Qt::Key_Down);
    auto& list = Part<QTreeView>(window, "lvwPayments");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    run.In(QStringLiteral("frmPayment"), [](QWidget& dialog) {
      QTest::keyClicks(&Focused(dialog), QStringLiteral("77.25"));
      QTest::keyClick(&Focused(dialog), Qt::Key_Return);
    });
    QTest::keyClick(&list, Qt::Key_Return);
    Part<QToolButton>(window, "cmdTbr_2").click();
    window.close();
  });
  // Enter on an entry opens the window that it is about.
  work.setCurrentRow(0);
  QTest::keyClick(&work, Qt::Key_Return);
  EXPECT_NE(Entries(work), before);
}

TEST(Year, TheChartIsReadByKeyboardAndKept) {
  DesktopRun run;
  run.OpenCompany();
  auto& chart = Part(run.Main(), "yearChart");
  const auto& words = Part<QLabel>(run.Main(), "chartWords");
  EXPECT_TRUE(words.text().startsWith(QLatin1String("2026: assessable 1,153,335.29")))
      << words.text().toStdString();
  QTest::keyClick(&chart, Qt::Key_Home);
  QTest::keyClick(&chart, Qt::Key_Right);
  EXPECT_TRUE(words.text().startsWith(QLatin1String("February 2026: assessable ")))
      << words.text().toStdString();
  EXPECT_EQ(chart.accessibleDescription(), words.text());
  QTest::keyClick(&chart, Qt::Key_End);
  QTest::keyClick(&chart, Qt::Key_Right);
  EXPECT_EQ(words.text(), "December 2026: assessable 0.00, assessment 0.00");
  EXPECT_EQ(chart.accessibleName(), "Chart: Assessable amounts, 2026");
  QTest::keyClick(&Part<QComboBox>(run.Main(), "chartMeasure"), Qt::Key_Down);
  EXPECT_EQ(chart.accessibleName(), "Chart: Assessments, 2026");

  const TemporaryFolder folder;
  run.ChooseFile(QStringLiteral("Save Chart"), folder.File("year.png"));
  Part<QPushButton>(run.Main(), "chartSave").click();
  const QImage kept(QString::fromStdString(folder.File("year.png")));
  EXPECT_GE(kept.width(), 1000);
  EXPECT_EQ(kept.pixelColor(0, 0), QColor(Qt::white));
  // A folder that isn't there: the error is told, nothing else happens.
  run.ChooseFile(QStringLiteral("Save Chart"), folder.File("gone/year.png"));
  run.Answer(QStringLiteral("Error"), QStringLiteral("53"), QStringLiteral("OK"));
  Part<QPushButton>(run.Main(), "chartSave").click();
}

TEST(Year, AFileThatCantBeReadIsToldInPlace) {
  DesktopRun run;
  run.OpenCompany();
  run.Program().GetSession().gDataConn->DataSource = run.DataFile() + ".gone";
  run.In(QStringLiteral("frmAbout"), [](QWidget& dialog) { dialog.close(); });
  run.Choose("mnuHabout");
  EXPECT_TRUE(Part(run.Main(), "glanceFailure").isVisible());
  EXPECT_FALSE(Part(run.Main(), "yearChart").isVisible());
}

}  // namespace
}  // namespace lorvane

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTest>

#include "DesktopRun.h"
#include "desktop/Dialogs.h"
#include "desktop/StartOrder.h"

namespace lorvane {
namespace {

bool IsShown(const char* title) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowTitle().contains(QLatin1String(title))) {
      return true;
    }
  }
  return false;
}

TEST(Start, ArgumentsAreRead) {
  const QString name = QStringLiteral("lorvane");
  const std::string here = QDir::currentPath().toStdString();
  EXPECT_EQ(ReadStartOrder({name})->company, "");
  EXPECT_EQ(ReadStartOrder({name, QStringLiteral("My books/Data.mdb")})->company,
            here + "/My books/Data.mdb");
  EXPECT_EQ(ReadStartOrder({name, QStringLiteral("--"), QStringLiteral("--x")})->company,
            here + "/--x");
  EXPECT_TRUE(ReadStartOrder({name, QStringLiteral("--manual")})->manual);
  EXPECT_TRUE(ReadStartOrder({name, QStringLiteral("--new-company")})->newCompany);
  testing::internal::CaptureStderr();
  EXPECT_FALSE(ReadStartOrder({name, QStringLiteral("--old-company")}));
  EXPECT_FALSE(ReadStartOrder({name, QStringLiteral("a.mdb"), QStringLiteral("b.mdb")}));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "lorvane: Unknown option 'old-company'.\nlorvane: one FILE can be opened at a time.\n");
}

TEST(Start, OpensTheCompanyThatIsGivenAndAsksForTheNextOne) {
  DesktopRun run([](DesktopRun& begun) { return StartOrder{.company = begun.DataFile()}; });
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return run.Main().windowTitle().endsWith(QStringLiteral(" for: Fundy Ridge Builders Limited"));
  }));
  EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblEmployees"), "25");
  run.OpenCompany();
}

TEST(Start, SaysWhyAFileThatIsGivenCannotBeOpened) {
  const std::string missing = "/nowhere/Data.mdb";
  const DesktopRun run([&](DesktopRun& begun) {
    begun.Answer(QStringLiteral("Open Company"),
                 QStringLiteral("The file /nowhere/Data.mdb does not exist."),
                 QStringLiteral("OK"));
    return StartOrder{.company = missing};
  });
  QTest::qWait(50);
}

TEST(Start, BeginsWithANewCompanyOrTheManual) {
  DesktopRun run(
      [](DesktopRun&) { return StartOrder{.company = {}, .newCompany = true, .manual = true}; });
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return run.Main().findChild<QWidget*>(QStringLiteral("frmCheckList")) != nullptr; }));
  EXPECT_TRUE(IsShown("Manual"));
}

TEST(Start, FileDialogsBeginInAFolderThatCanBeWritten) {
  DesktopRun run;
  const QString own = QFileInfo(QString::fromStdString(run.DataFile())).path();
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString home = QDir(documents).exists() ? documents : QDir::homePath();
  for (const auto& [start, folder] : {std::pair{own, own}, std::pair{own + "/Data.mdb", own},
                                      std::pair{QStringLiteral("/nowhere/Data.mdb"), home}}) {
    run.In(QStringLiteral("Chosen"), [folder = folder](QWidget& window) {
      EXPECT_EQ(dynamic_cast<QFileDialog&>(window).directory().path(), folder);
      window.close();
    });
    FileDialog dialog{"Chosen", "Data files(*.mdb)|*.mdb", start.toStdString()};
    dialog.newFile = true;
    EXPECT_EQ(AskForFileName(&run.Main(), dialog), "");
  }
}

}  // namespace
}  // namespace lorvane

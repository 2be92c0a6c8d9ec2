#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QToolTip>
#include <QTreeView>
#include <filesystem>
#include <fstream>

#include "DesktopRun.h"

namespace lorvane {
namespace {

constexpr const char* kEmployees = "SELECT Count(*) AS N FROM tblEmployees";
constexpr const char* kSubContractors = "SELECT Count(*) AS N FROM tblSubContract";

void Click(const QWidget& window, const char* button) {
  auto& widget = Part<QAbstractButton>(window, button);
  QTest::mouseClick(&widget, Qt::LeftButton);
}

bool IsTicked(const QWidget& window, const char* box) {
  return Part<QAbstractButton>(window, box).isChecked();
}

QString Cell(const QTreeView& view, int row, int place) {
  return view.model()->index(row, place).data().toString();
}

TEST(ImportWindows, EmployeesComeInFromASheet) {
  DesktopRun run;
  const TemporaryFolder folder;
  const std::string sheet = folder.File("people.csv");
  std::ofstream(sheet) << "046-454-286-99,Boutilier,Shauna,Marie\n130-692-544,LeBlanc,Réjean,B\n";
  run.OpenCompany();
  const int before = std::stoi(run.First(kEmployees));
  run.In(QStringLiteral("frmImport"), [&](QWidget& window) {
    EXPECT_FALSE(Part<QAbstractButton>(window, "cmdImportExcel").isEnabled());
    EXPECT_FALSE(Part<QAbstractButton>(window, "chkCol_4").isVisible());
    run.ChooseFile(QStringLiteral("QFileDialog"), sheet);
    QTest::keyClick(&Focused(window), Qt::Key_Tab);
    EXPECT_EQ(Focused(window).objectName(), "cmdFromExcel");
    QTest::keyClick(&Focused(window), Qt::Key_Space);
    EXPECT_EQ(Part<QLineEdit>(window, "txtExcelSource").text().toStdString(), sheet);
    EXPECT_EQ(Focused(window).objectName(), "txtNumberCols");
    QTest::keyClick(&Focused(window), Qt::Key_Return);
    EXPECT_EQ(Focused(window).objectName(), "chkRemove");

    const auto& rows = Part<QTreeView>(window, "lvwPreview");
    Click(window, "cmdPreview");
    EXPECT_EQ(rows.model()->rowCount(), 2);
    EXPECT_EQ(Cell(rows, 0, 1), "046-454-286-");
    EXPECT_EQ(Cell(rows, 0, 5),
              "SIN: cut from 14 to 12 characters; Middle initial: cut from 5 to 1 characters");
    EXPECT_EQ(Cell(rows, 1, 3), QStringLiteral("Réjean"));
    const QRect note = rows.visualRect(rows.model()->index(0, 5));
    QHelpEvent hover(QEvent::ToolTip, note.center(), rows.viewport()->mapToGlobal(note.center()));
    QCoreApplication::sendEvent(rows.viewport(), &hover);
    EXPECT_EQ(QToolTip::text(), Cell(rows, 0, 5));
    EXPECT_FALSE(IsTicked(window, "chkRemove"));

    run.In(QStringLiteral("frmImportHlp"), [](QWidget& help) {
      EXPECT_TRUE(Part<QLabel>(help, "lblExcelEmp_0").isVisible());
      EXPECT_FALSE(Part<QLabel>(help, "lblExcelSubs_0").isVisible());
      QTest::keyClick(&Focused(help), Qt::Key_Escape);
    });
    Click(window, "cmdHlpExcel");

    run.Answer(QStringLiteral("Import Data"), QStringLiteral("Imported 2 rows"),
               QStringLiteral("OK"));
    Click(window, "cmdImportExcel");
    for (const char* box : {"chkRemove", "chkCol_0", "chkCol_3"}) {
      EXPECT_TRUE(IsTicked(window, box)) << box;
    }
    EXPECT_EQ(rows.model()->rowCount(), 0);
    EXPECT_FALSE(Part<QAbstractButton>(window, "cmdImportExcel").isEnabled());
    Click(window, "cmdOK");
  });
  run.Choose("mnuFIEmployees");
  EXPECT_EQ(run.First(kEmployees), std::to_string(before + 2));
  EXPECT_EQ(run.First("SELECT FirstName FROM tblEmployees WHERE Sin = '130-692-544'"), "Réjean");
}

TEST(ImportWindows, SubContractorsComeInFromAnotherCompany) {
  DesktopRun run;
  const TemporaryFolder folder;
  const std::string other = folder.File("Other.mdb");
  std::filesystem::copy_file(run.DataFile(), other);
  run.OpenCompany();
  const int before = std::stoi(run.First(kSubContractors));
  run.In(QStringLiteral("frmImportExisting"), [&](QWidget& window) {
    const QString dialog = QStringLiteral("Select the location of the existing data");
    auto& bar = Part<QProgressBar>(window, "prgBar");
    EXPECT_FALSE(bar.isVisible());
    run.In(dialog, [](QWidget& files) { files.close(); });
    Click(window, "cmdFrom");
    EXPECT_FALSE(Part<QAbstractButton>(window, "cmdImport").isEnabled());
    run.ChooseFile(dialog, other);
    Click(window, "cmdFrom");
    EXPECT_EQ(Part<QLineEdit>(window, "txtSource").text().toStdString(), other);
    auto& import = Part<QAbstractButton>(window, "cmdImport");
    import.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&import, Qt::Key_Return);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(Part<QLabel>(window, "lblImporting").text(), "Importing...complete.");
    Click(window, "cmdClose");
  });
  run.Choose("mnuFISCompany");
  EXPECT_EQ(run.First(kSubContractors), std::to_string(2 * before));
}

}  // namespace
}  // namespace lorvane

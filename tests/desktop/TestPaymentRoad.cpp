#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include "DesktopRun.h"

namespace lorvane {
namespace {

QString Cell(const QTreeView& view, int row, int place) {
  return view.model()->index(row, place).data().toString();
}

void EnterAmount(DesktopRun& run, const char* amount) {
  run.In(QStringLiteral("frmPayment"), [amount](QWidget& dialog) {
    QTest::keyClicks(&Focused(dialog), QLatin1String(amount));
    QTest::keyClick(&Focused(dialog), Qt::Key_Return);
  });
}

// From the main window to the posted payments, with the keyboard alone.
TEST(PaymentRoad, EntersSavesAndPostsByKeyboard) {
  DesktopRun run;
  run.OpenCompany();
  const int before = std::stoi(run.First("SELECT Count(*) AS N FROM tblEmpHistory"));

  run.In(QStringLiteral("frmSelectAssessment"), [&](QWidget& window) {
    auto& list = Part<QTreeView>(window, "lvwPayments");
    QTest::keyClick(&Focused(window), Qt::Key_Tab);
    QTest::keyClick(&Focused(window), Qt::Key_Tab);
    EXPECT_EQ(Focused(window).objectName(), "lstIndustries");
    EXPECT_EQ(list.model()->rowCount(), 0);
    QTest::keyClick(&Focused(window), Qt::Key_Down);
    EXPECT_EQ(list.model()->rowCount(), 9);
    QTest::keyClick(&Focused(window), Qt::Key_Tab);
    EXPECT_EQ(Focused(window).objectName(), "lvwPayments");
    QTest::keyClick(&Focused(window), Qt::Key_Down);
    for (const char* amount : {"1000.005", "-20", "12x34.5"}) {
      EnterAmount(run, amount);
      QTest::keyClick(&list, Qt::Key_Return);
    }
    EXPECT_EQ(Cell(list, 1, 3), "-20.00");
    EXPECT_EQ(Cell(list, 2, 3), "1,234.50");
    EXPECT_EQ(list.currentIndex().row(), 3);
    EXPECT_FALSE(Part<QListWidget>(window, "lstIndustries").isEnabled());
    EXPECT_TRUE(Part<QToolButton>(window, "cmdTbr_2").isEnabled());

    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keySequence(&window, QKeySequence(QStringLiteral("Ctrl+S")));
    EXPECT_FALSE(Part<QToolButton>(window, "cmdTbr_2").isEnabled());
    EXPECT_TRUE(Part<QListWidget>(window, "lstIndustries").isEnabled());

    QTest::keySequence(&window, QKeySequence(QStringLiteral("Ctrl+A")));
    EXPECT_EQ(list.selectionModel()->selectedRows().size(), 9);
    run.Answer(QStringLiteral("Post"), QStringLiteral("You are about to post"),
               QStringLiteral("Yes"));
    run.In(QStringLiteral("frmSelectDate"), [](QWidget& dialog) {
      Part<QCalendarWidget>(dialog, "calDate").setSelectedDate(QDate(2026, 11, 20));
      QTest::keyClick(&Focused(dialog), Qt::Key_Return);
    });
    auto& post = Part<QToolButton>(window, "cmdTbr_5");
    post.setFocus();
    QTest::keyClick(&post, Qt::Key_Space);
    EXPECT_EQ(Cell(list, 2, 3), "0.00");
    // The post left the state of editing flipped back; nothing is asked.
    window.close();
  });
  run.Choose("mnuFEnterPayments");

  EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblEmpHistory"), std::to_string(before + 3));
  EXPECT_EQ(run.First("SELECT Sum(AmountA) AS S FROM tblEmpHistory WHERE PayDateA = #11/20/2026#"),
            "2214.51");
}

TEST(PaymentRoad, ClosingWithUnsavedEntriesAsksAndRightClickOpensTheMenu) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmSelectAssessment"), [&](QWidget& window) {
    auto& list = Part<QTreeView>(window, "lvwPayments");
    auto& industries = Part<QListWidget>(window, "lstIndustries");
    QTest::mouseClick(industries.viewport(), Qt::LeftButton, {},
                      industries.visualItemRect(industries.item(1)).center());
    EXPECT_EQ(industries.currentRow(), 1);
    EnterAmount(run, "5");
    const QPoint second = list.visualRect(list.model()->index(1, 1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(Cell(list, 1, 3), "5.00");
    EXPECT_TRUE(list.selectionModel()->isRowSelected(2));
    run.Answer(QStringLiteral("Save"), QStringLiteral("There is unsaved information.\n\nDo you"),
               QStringLiteral("Cancel"));
    window.close();
  });
  run.Choose("mnuFEnterPayments");
  EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblEmployees WHERE AmountB = 5"), "0");
}

}  // namespace
}  // namespace lorvane

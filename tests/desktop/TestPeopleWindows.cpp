#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTest>

#include "DesktopRun.h"

namespace lorvane {
namespace {

void Type(QWidget& window, const char* text) {
  QTest::keyClicks(&Focused(window), QString::fromUtf8(text));
  QTest::keyClick(&Focused(window), Qt::Key_Return);
}

TEST(PeopleWindows, AnEmployeeIsAddedByKeyboard) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmEmployees"), [&](QWidget& window) {
    auto& pages = Part<QTabWidget>(window, "sstEmployees");
    auto& names = Part<QListWidget>(window, "lstEmployees");
    const int before = names.count();
    QTest::keySequence(&window, QKeySequence::Find);
    QTest::keyClicks(&Part<QLineEdit>(window, "namesFilter"), "mac");
    for (int i = 0; i < before; ++i) {
      EXPECT_EQ(names.isRowHidden(i), !names.item(i)->text().contains("mac", Qt::CaseInsensitive));
    }
    Part<QLineEdit>(window, "namesFilter").clear();
    EXPECT_FALSE(names.isRowHidden(0));
    QTest::keyClick(&Focused(window), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages.currentIndex(), 1);
    Part<QAbstractButton>(window, "cmdAdd").click();
    EXPECT_EQ(pages.currentIndex(), 0);
    EXPECT_EQ(Focused(window).objectName(), "txtFirstName");
    EXPECT_FALSE(names.isEnabled());
    Type(window, "Zoe");
    EXPECT_NE(Focused(window).objectName(), "txtFirstName");
    QLineEdit& last = Part<QLineEdit>(window, "txtLastName");
    last.setFocus(Qt::TabFocusReason);
    Type(window, "O'Dell");
    Part<QAbstractButton>(window, "chkIndA").click();
    Part<QAbstractButton>(window, "cmdApply").click();
    EXPECT_EQ(names.count(), before + 1);
    EXPECT_TRUE(names.isEnabled());
    window.close();
  });
  run.Choose("mnuFEmployees");
  EXPECT_EQ(run.First("SELECT FirstName FROM tblEmployees WHERE LastName = 'O''Dell'"), "Zoe");
}

TEST(PeopleWindows, ASubContractorIsChangedAndTheChangeThrownAway) {
  DesktopRun run;
  run.OpenCompany();
  run.In(QStringLiteral("frmSubContractor"), [&](QWidget& window) {
    auto& names = Part<QListWidget>(window, "lstSubContractors");
    QLineEdit& name = Part<QLineEdit>(window, "txtSubName");
    const QString stored = name.text();
    EXPECT_EQ(stored, names.currentItem()->text());
    name.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&name, "X");
    EXPECT_FALSE(names.isEnabled());
    QTest::keyClick(&name, Qt::Key_Escape);
    EXPECT_EQ(name.text(), stored);
    EXPECT_TRUE(names.isEnabled());
    QTest::keyClicks(&name, "X");
    run.Answer(window.windowTitle(), QStringLiteral("Your information has changed."),
               QStringLiteral("No"));
    window.close();
  });
  run.Choose("mnuFSubContractors");
  EXPECT_EQ(run.First("SELECT Count(*) AS N FROM tblSubContract WHERE Name = 'X'"), "0");
}

}  // namespace
}  // namespace lorvane

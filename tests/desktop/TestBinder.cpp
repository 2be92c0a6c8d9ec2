#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include "DesktopRun.h"
#include "desktop/binder/ScreenDialog.h"
#include "desktop/binder/TypedDateEdit.h"
#include "screen/Buttons.h"
#include "screen/Lists.h"
#include "screen/MaskedText.h"
#include "screen/TabStrip.h"
#include "screen/TextBox.h"
#include "screen/modTextBox.h"

namespace lorvane {
namespace {

// One control of each kind that isn't on the payment windows.
class frmSmall : public Screen {
 public:
  explicit frmSmall(ScreenContext context) : Screen(context, "frmSmall", "Small") {
    txtNumber.SetMaxLength(6);
    txtNumber.OnGotFocus = [this] { SelectText(txtNumber); };
    txtNumber.OnKeyPress = [](int& key) { key = FilterKeyPressNumeric(key, true); };
    txtNumber.OnValidate = [this] { return txtNumber.Text() != "13"; };
    txtUpper.SetCase(LetterCase::kUpper);
    cboProvince.Add("NB");
    cboProvince.Add("NS");
  }
  TextBox txtNumber{*this, "txtNumber"};
  TextBox txtUpper{*this, "txtUpper"};
  MaskedText mskSin{*this, "mskSin", "###-###"};
  CheckBox chkInd{*this, "chkInd", "Active"};
  ComboBox cboProvince{*this, "cboProvince"};
  TabStrip sstPages{*this, "sstPages", {"One", "Two"}};
};

class SmallWindow : public ScreenDialog {
 public:
  SmallWindow(frmSmall& screen, ScreenGate& gate) : ScreenDialog(screen, gate, nullptr) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(binder_.Make(screen.txtNumber));
    layout->addWidget(binder_.Make(screen.txtUpper));
    layout->addWidget(binder_.Make(screen.mskSin));
    layout->addWidget(binder_.Make(screen.chkInd));
    layout->addWidget(binder_.Make(screen.cboProvince));
    QTabWidget* tabs = binder_.Make(screen.sstPages);
    tabs->addTab(new QWidget, QStringLiteral("One"));
    tabs->addTab(new QWidget, QStringLiteral("Two"));
    layout->addWidget(tabs);
    Complete();
  }
};

class Binder : public testing::Test {
 protected:
  Binder() {
    window_.Present();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }
  QLineEdit& Field(const char* name) { return Part<QLineEdit>(window_, name); }

  DesktopRun run_;
  frmSmall screen_{run_.Program().Context()};
  SmallWindow window_{screen_, run_.Program().Gate()};
};

TEST_F(Binder, EveryWayOfTypingGoesThroughTheFilter) {
  QLineEdit& number = Field("txtNumber");
  QTest::keyClicks(&number, "1a2b3");
  EXPECT_EQ(number.text(), "123");
  QApplication::clipboard()->setText(QStringLiteral("x4 5"));
  QTest::keySequence(&number, QKeySequence::Paste);
  EXPECT_EQ(number.text(), "12345");
  QTest::keyClick(&number, Qt::Key_Home);
  QTest::keyClick(&number, Qt::Key_Delete);
  EXPECT_EQ(number.text(), "2345");
  QTest::keyClicks(&number, "789");
  EXPECT_EQ(number.text(), "782345");  // no more than six
  EXPECT_EQ(screen_.txtNumber.Text(), "782345");
  QTest::keySequence(&number, QKeySequence::SelectAll);
  QTest::keySequence(&number, QKeySequence::Cut);
  EXPECT_EQ(screen_.txtNumber.Text(), "");
  EXPECT_EQ(QApplication::clipboard()->text(), "782345");
}

TEST_F(Binder, ComposedLettersAndCapitalsReachTheField) {
  QLineEdit& upper = Field("txtUpper");
  upper.setFocus();
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("é"));
  QApplication::sendEvent(&upper, &composed);
  QTest::keyClicks(&upper, "t ");
  EXPECT_EQ(upper.text().toStdString(), "ÉT ");
  EXPECT_EQ(screen_.txtUpper.Text(), "ÉT ");
}

TEST_F(Binder, AMaskKeepsItsShape) {
  QLineEdit& masked = Field("mskSin");
  QTest::keyClick(&masked, Qt::Key_Home);
  QTest::keyClicks(&masked, "12x34");
  EXPECT_EQ(masked.text(), "123-4__");
  QTest::keyClick(&masked, Qt::Key_Home);
  QTest::keyClick(&masked, Qt::Key_Delete);
  EXPECT_EQ(masked.text(), "_23-4__");
}

TEST_F(Binder, AFieldThatIsNotRightKeepsTheFocus) {
  QLineEdit& number = Field("txtNumber");
  QTest::keyClicks(&number, "13");
  QTest::mouseClick(&Field("txtUpper"), Qt::LeftButton);
  EXPECT_EQ(&Focused(window_), &number);
  QTest::mouseClick(&Part(window_, "chkInd"), Qt::LeftButton);
  EXPECT_FALSE(screen_.chkInd.Checked());
  QTest::keyClick(&number, Qt::Key_Tab);
  EXPECT_EQ(&Focused(window_), &number);
  QTest::keyClick(&number, Qt::Key_Backspace);
  QTest::keyClick(&number, Qt::Key_Tab);
  EXPECT_EQ(Focused(window_).objectName(), "txtUpper");
  QTest::keyClick(&Focused(window_), Qt::Key_Backtab);
  EXPECT_EQ(&Focused(window_), &number);
  EXPECT_EQ(number.selectedText(), "1");
}

TEST_F(Binder, BoxesListsAndPagesFollowBothWays) {
  QTest::keyClick(&Part(window_, "chkInd"), Qt::Key_Space);
  EXPECT_TRUE(screen_.chkInd.Checked());
  auto& combo = Part<QComboBox>(window_, "cboProvince");
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(screen_.cboProvince.Text(), "NB");
  auto& tabs = Part<QTabWidget>(window_, "sstPages");
  tabs.setCurrentIndex(1);
  EXPECT_EQ(screen_.sstPages.Tab(), 1);
  run_.Program().Gate().Run([&] {
    screen_.chkInd.SetChecked(false);
    screen_.cboProvince.SetListIndex(1);
    screen_.sstPages.SetTab(0);
    screen_.SetCaption("Other");
  });
  EXPECT_FALSE(Part<QCheckBox>(window_, "chkInd").isChecked());
  EXPECT_EQ(combo.currentText(), "NS");
  EXPECT_EQ(tabs.currentIndex(), 0);
  EXPECT_EQ(window_.windowTitle(), "Other");
}

TEST_F(Binder, ADateIsTypedWithOrWithoutZeros) {
  for (const char* typed : {"1/2/2025", "01/02/2025", "0102/2025", "1/02/2025"}) {
    TypedDateEdit edit(QDate(2026, 11, 23));
    edit.setDisplayFormat(QStringLiteral("M/d/yyyy"));
    edit.show();
    edit.setFocus();
    edit.setSelectedSection(QDateTimeEdit::MonthSection);
    QTest::keyClicks(&edit, QLatin1String(typed));
    EXPECT_EQ(edit.date(), QDate(2025, 1, 2)) << typed;
  }
}

}  // namespace
}  // namespace lorvane

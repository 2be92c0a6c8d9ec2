#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/MaskedText.h"
#include "screen/Menu.h"
#include "screen/ProgressBar.h"
#include "screen/Screen.h"
#include "screen/modListBox.h"
#include "screen/modTextBox.h"
#include "support/ErrorOf.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

class Controls : public testing::Test {
 protected:
  void Type(TextBox& box, const std::string& keys) {
    for (const char key : keys) {
      screen_.UserKey(box, key);
    }
  }

  TestCompany company_;
  Screen screen_{company_.Context(), "frmTest", "Test"};
};

TEST_F(Controls, TypingReplacesTheSelectionWithinTheLimit) {
  TextBox box(screen_, "txtName");
  box.SetMaxLength(4);
  box.SetText("abc");
  SelectText(box);
  Type(box, "xy");
  EXPECT_EQ(box.Text(), "xy");
  screen_.UserKey(box, 0xE9);  // é
  Type(box, "zz");
  EXPECT_EQ(box.Text(), "xyéz");
  Type(box, "\b\b");
  EXPECT_EQ(box.Text(), "xy");
  SetTextBoxCase(box, 1);
  screen_.UserKey(box, 0xE9);
  SetTextBoxCase(box, 7);
  Type(box, "w");
  EXPECT_EQ(box.Text(), "xyÉW");
  box.SetReadOnly(true);
  Type(box, "\b");
  EXPECT_EQ(box.Text(), "xyÉW");
  // Code isn't bound by the limit.
  box.SetText("longer than four");
  EXPECT_EQ(box.Text(), "longer than four");
}

TEST_F(Controls, KeyFiltersLetPassWhatTheirFieldTakes) {
  EXPECT_EQ(FilterKeyPressNumeric('.', false), '.');
  EXPECT_EQ(FilterKeyPressNumeric('.', true), 0);
  EXPECT_EQ(FilterKeyPressNumeric('-', false), '-');
  EXPECT_EQ(FilterKeyPressNumeric('\b', true), '\b');
  EXPECT_EQ(FilterKeyPressNumeric('x', false), 0);
  EXPECT_EQ(FilterKeyPressAlpha('z'), 'z');
  EXPECT_EQ(FilterKeyPressAlpha('\b'), '\b');
  EXPECT_EQ(FilterKeyPressAlpha('1'), 0);
}

TEST_F(Controls, AMaskKeepsItsMarks) {
  MaskedText box(screen_, "mtxtSin", "###-###-###");
  EXPECT_EQ(box.Text(), "___-___-___");
  Type(box, "4162x23");
  EXPECT_EQ(box.Text(), "416-223-___");
  Type(box, "\b\b");
  EXPECT_EQ(box.Text(), "416-2__-___");
  SelectText(box);
  Type(box, "x");
  EXPECT_EQ(box.Text(), "416-2__-___");
  Type(box, "9");
  EXPECT_EQ(box.Text(), "9__-___-___");
}

TEST_F(Controls, AListRaisesTheErrorsOfItsKind) {
  ComboBox combo(screen_, "cboProvinces");
  int clicks = 0;
  combo.OnClick = [&] { ++clicks; };
  combo.Add("NF", 1);
  combo.Add("NS", 2);
  combo.SetText("NS");
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(ErrorOf([&] { combo.SetText("XX"); }), error_number::kTextNotInList);
  EXPECT_EQ(combo.Text(), "NS");
  EXPECT_EQ(ErrorOf([&] { combo.SetListIndex(2); }), error_number::kInvalidPropertyValue);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(combo.ItemData(-1)); }),
            error_number::kInvalidArrayIndex);
}

TEST_F(Controls, AfterARemovalTheNeighbourIsSelected) {
  struct Case {
    int count;
    std::int16_t index;
    int selected;
  };
  for (const Case& row : {Case{0, 0, -1}, Case{3, 0, 0}, Case{3, 1, 1}, Case{3, 2, 2},
                          Case{3, 3, 2}, Case{1, 0, 0}, Case{3, -1, 0}}) {
    ListBox list(screen_, "lst");
    for (int i = 0; i < row.count; ++i) {
      ListAddItem(list, 10 + i, "entry");
    }
    EXPECT_EQ(ListReselect(list, row.index), row.selected) << row.count << " " << row.index;
    EXPECT_EQ(ListIndexByData(list, 11), row.count > 1 ? 1 : -1);
  }
}

TEST_F(Controls, ALimitIsKeptByPickersAndProgress) {
  DatePicker picker(screen_, "dtpStarting", {2026, 1, 5});
  picker.SetLimits(DateTime{2026, 1, 1}, DateTime{2026, 12, 31});
  picker.SetDate({2026, 12, 31, 23, 0, 0});
  EXPECT_EQ(ErrorOf([&] { picker.SetDate({2027, 1, 1}); }), error_number::kDateOutOfRange);
  EXPECT_EQ(picker.ShownText(), "12/31/2026 11:00:00 PM");
  picker.UserPick({2026, 12, 30});
  EXPECT_EQ(picker.ShownText(), "12/30/2026");
  ProgressBar progress(screen_, "prgReport");
  EXPECT_EQ(ErrorOf([&] { progress.SetMaximum(0); }), error_number::kInvalidPropertyValue);
  progress.SetMaximum(3);
  EXPECT_EQ(ErrorOf([&] { progress.SetValue(4); }), error_number::kInvalidPropertyValue);
}

TEST_F(Controls, AListViewSortsAsTextAndStaysSorted) {
  ListView view(screen_, "lvw", true);
  view.AddRows({{{"1", "Émond", "30.00"}}, {{"2", "abel", "200.00"}}, {{"3", "Zed", "1,000.00"}}});
  view.SetSelected(0, true);
  view.SortBy(2);
  EXPECT_EQ(view.Cell(0, 0), "3");
  EXPECT_EQ(view.SelectedIndex(), 2);
  view.SortBy(1);
  EXPECT_EQ(view.Cell(1, 1), "Émond");
  view.AddRows({{{"4", "Côté", ""}}});
  EXPECT_EQ(view.Cell(1, 0), "4");
  EXPECT_EQ(ErrorOf([&] { view.SetSelected(4, true); }), error_number::kIndexOutOfBounds);
  EXPECT_EQ(view.Cell(1, 7), "");
}

TEST_F(Controls, AnOptionUnsetsItsGroupAlone) {
  OptionButton first(screen_, "opt1", "a");
  OptionButton second(screen_, "opt2", "a");
  OptionButton other(screen_, "opt3", "b");
  int clicks = 0;
  first.OnClick = second.OnClick = [&] { ++clicks; };
  other.Choose();
  first.Choose();
  second.UserClick();
  second.UserClick();
  EXPECT_FALSE(first.Chosen());
  EXPECT_TRUE(second.Chosen());
  EXPECT_TRUE(other.Chosen());
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, AMenuEntryNeedsEveryMenuAboveIt) {
  MenuEntry file(screen_, "mnuFile", "&File");
  MenuEntry import(file, "mnuFImport", "&Import");
  MenuEntry employees(import, "mnuFIEmployees", "E&mployees");
  int clicks = 0;
  employees.OnClick = [&] { ++clicks; };
  import.SetEnabled(false);
  employees.UserClick();
  EXPECT_EQ(clicks, 0);
  import.SetEnabled(true);
  employees.UserClick();
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace lorvane

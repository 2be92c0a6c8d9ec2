#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "employer/frmAssets.h"
#include "employer/frmOptions.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

using Kind = ScriptAnswer::Kind;

class EmployerWindows : public testing::Test {
 protected:
  EmployerWindows() {
    company_.Execute("INSERT INTO tblCompany (CompanyId, City) VALUES (1, 'Digby')");
    company_.Execute(
        "INSERT INTO tblPrincipals (PrincipalId, LastName, FirstName, Title) VALUES (7, 'Doe', "
        "'Jane', 'Owner')");
    company_.Execute("INSERT INTO tblAssets (AssetId, Description) VALUES (7, 'Crane')");
    EXPECT_TRUE(cOptions(company_.Context()).SaveOptions(company_.ConfigFile()));
  }

  [[nodiscard]] bool NextBoxTells(const char* part) {
    return company_.Services().NextBox().find(part) != std::string::npos;
  }

  TestCompany company_;
};

// What is pasted comes without keys.
TEST_F(EmployerWindows, EveryFieldCountsAsAnEditHoweverItIsChanged) {
  frmOptions options(company_.Context());
  company_.Services().Show(options);
  frmAssets assets(company_.Context());
  company_.Services().Show(assets);
  struct Case {
    Screen& window;
    RecordEditor& editor;
  };
  for (const Case& row : {Case{options, options.principalsPage}, Case{assets, assets.assetsPage}}) {
    int fields = 0;
    for (Control* control : row.window.Controls()) {
      if (control->DataField.empty()) {
        continue;
      }
      SCOPED_TRACE(control->Name());
      ++fields;
      row.editor.list.SetListIndex(-1);
      row.editor.list.SetListIndex(0);
      EXPECT_TRUE(row.editor.MayClose());
      if (auto* box = dynamic_cast<TextBox*>(control)) {
        box->SetText("1/2/1980");
      } else if (auto* province = dynamic_cast<ProvinceBox*>(control)) {
        province->UserSelect(3);
      } else {
        control->UserClick();
      }
      company_.Services().Answer(Kind::kCancel);
      EXPECT_FALSE(row.editor.MayClose());
    }
    EXPECT_GE(fields, 8);
  }
}

// A data file that can't be read any more, as when its disk was taken away.
TEST_F(EmployerWindows, TellWhatTheTablesRefuse) {
  frmAssets window(company_.Context());
  company_.Services().Show(window);
  AssetsPage& page = window.assetsPage;
  page.list.UserSelect(0);
  EXPECT_EQ(page.txtDescription.Text(), "Crane");
  company_.GetSession().gDataConn->DataClose();

  company_.Services().Answer(Kind::kYes);
  page.cmdDelete.UserClick();
  EXPECT_TRUE(NextBoxTells("Are you sure"));
  EXPECT_TRUE(NextBoxTells("cAssets.Delete()"));
  EXPECT_EQ(page.list.Count(), 1);

  page.txtSerialNumber.SetText("S1");
  company_.Services().Answer(Kind::kYes);
  EXPECT_FALSE(window.Close());
  EXPECT_TRUE(NextBoxTells("There is unsaved information."));
  EXPECT_TRUE(NextBoxTells("cAssets.Update()"));
  EXPECT_EQ(page.txtSerialNumber.Text(), "S1");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);

  page.cmdAdd.UserClick();
  page.list.UserSelect(0);
  EXPECT_TRUE(NextBoxTells("cAssets.OpenRecordset()"));
  EXPECT_EQ(page.txtDescription.Text(), "");
  frmOptions options(company_.Context());
  company_.Services().Show(options);
  EXPECT_TRUE(NextBoxTells("There was a problem opening your company information."));
  EXPECT_TRUE(NextBoxTells("cPrincipals.OpenRecordset()"));
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(EmployerWindows, OptionsThatCantBeWrittenAreToldAndTheWindowCloses) {
  frmOptions window(company_.Context());
  company_.Services().Show(window);
  EXPECT_EQ(window.claim.TextBoxes().at(2)->Text(), "Digby");
  company_.Disk().Fail("write", "LorvaneConfig.ini", error_number::kPermissionDenied);
  EXPECT_TRUE(window.Close());
  EXPECT_TRUE(NextBoxTells("Path/File access error"));
  EXPECT_EQ(company_.Services().NextBox(),
            "\"Options\" \"There was a problem saving your current settings.\"");
}

// A date that is none would be stored as no date at all.
TEST_F(EmployerWindows, ADateThatIsNoneIsntSavedOnTheWayOutEither) {
  frmOptions window(company_.Context());
  company_.Services().Show(window);
  PrincipalsPage& page = window.principalsPage;
  page.list.UserSelect(0);
  window.SetFocus(page.txtDob);
  page.txtDob.SetText("13/13/1980");
  company_.Services().Answer(Kind::kYes);
  EXPECT_FALSE(window.Close());
  EXPECT_TRUE(NextBoxTells("There is unsaved information."));
  EXPECT_EQ(company_.Services().NextBox(), "\"Date\" \"Please enter a valid date.\"");
  EXPECT_EQ(window.sstOptions.Tab(), 2);
  page.txtDob.SetText("30/12/1980");
  company_.Services().Answer(Kind::kYes);
  EXPECT_TRUE(window.Close());
  EXPECT_EQ(company_.First("SELECT BirthDate FROM tblPrincipals"), "12/30/1980");
}

}  // namespace
}  // namespace lorvane

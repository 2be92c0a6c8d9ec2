#include <gtest/gtest.h>

#include <filesystem>

#include "company/frmCheckList.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

constexpr const char* kAsMain = "frmMain";

/// Notes the windows that are opened and the operations that are called.
std::string& Notes() {
  static std::string notes;
  return notes;
}

template <char kMark>
class NotingScreen : public Screen {
 public:
  explicit NotingScreen(ScreenContext context) : Screen(context, "frmNoting", "") {}
  NotingScreen(ScreenContext context, std::string name) : Screen(context, std::move(name), "") {}
  void Load() override { Notes() += kMark; }
  bool Call(std::string_view operation) override {
    Notes() += operation;
    return true;
  }
};

const ScreenRegistry& Windows() {
  static const ScreenRegistry kWindows = [] {
    ScreenRegistry registry;
    registry.Add<NotingScreen<'c'>>("frmCompany");
    registry.Add<NotingScreen<'s'>>("frmSubContractor");
    registry.Add<NotingScreen<'e'>>("frmEmployees");
    return registry;
  }();
  return kWindows;
}

class CheckList : public testing::Test {
 protected:
  CheckList() {
    company_.Services().Show(main_);
    std::filesystem::create_directory(Folder());
    Notes().clear();
  }

  [[nodiscard]] std::string Folder() const { return company_.Folder() + "/new"; }
  [[nodiscard]] std::string Left() const {
    std::string names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
      names += entry.path().filename().string() + ";";
    }
    return names;
  }
  void PutTemplate(const std::string& content) {
    company_.GetSession().programFolder = company_.Folder();
    std::filesystem::create_directories(company_.Folder() + "/Resource/Template");
    DiskFiles().Write(company_.Folder() + "/Resource/Template/Data.mdb", content);
  }
  void CreateFiles(frmCheckList& list) {
    company_.Services().Answer(Folder() + "/Data.mdb");
    list.cmdCompanyDataFiles.UserClick();
  }

  TestCompany company_{Windows()};
  NotingScreen<'m'> main_{company_.Context(), kAsMain};
};

TEST_F(CheckList, StepsAreTakenInTheirOrderAndOnce) {
  frmCheckList list(company_.Context());
  list.Load();
  for (MenuEntry* entry : {&list.mnuCompany, &list.mnuFSubContractors, &list.mnuFEmployees}) {
    entry->UserClick();
  }
  EXPECT_EQ(Notes(), "");
  CreateFiles(list);
  EXPECT_EQ(Notes(), "ActivateMenu");
  for (int step = 0; step < 3; ++step) {
    company_.Services().InWindow([](Screen&) {});
  }
  list.cmdEmployees.UserClick();
  list.mnuCompany.UserClick();
  list.cmdCompanyInfo.UserClick();
  EXPECT_TRUE(list.lblCompanyInfo.StrikeThrough());
  EXPECT_FALSE(list.lblSubCon.StrikeThrough());
  list.cmdSubContractors.UserClick();
  EXPECT_EQ(list.Focus(), &list.cmdEmployees);
  list.cmdEmployees.UserClick();
  list.cmdEmployees.UserClick();
  EXPECT_EQ(Notes(), "ActivateMenucse");
  list.cmdOK.UserClick();
  EXPECT_EQ(Notes(), "ActivateMenucseRefreshCompanyCaption");
  EXPECT_TRUE(list.IsClosed());
  const std::vector<std::string> environment =
      company_.GetSession().Ini().SectionGet("Environment");
  EXPECT_EQ(environment, (std::vector<std::string>{"ToolBar=-1", "StatusBar=-1", "Setup=0",
                                                   "DataFiles=-1", "Company=0", "SubContractors=-1",
                                                   "Employees=-1", "Name=None"}));
}

TEST_F(CheckList, AMissingTemplateLeavesNothingAndCanBeTriedAgain) {
  const std::string before = company_.GetSession().gConfigFile;
  company_.GetSession().programFolder = company_.Folder();
  frmCheckList list(company_.Context());
  CreateFiles(list);
  EXPECT_TRUE(company_.Services().NextBox().starts_with("\"Error\" \"53\\n"));
  EXPECT_EQ(Left(), "");
  EXPECT_EQ(company_.GetSession().gConfigFile, before);
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblIndustries"), "1");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
  EXPECT_FALSE(list.cmdCompanyInfo.Enabled());
  EXPECT_TRUE(list.cmdCompanyDataFiles.Enabled());
}

class DamagedTemplate : public CheckList, public testing::WithParamInterface<int> {};

TEST_P(DamagedTemplate, EndsTheProgramAndLeavesNothing) {
  std::string content =
      *DiskFiles().Read(company_.GetSession().programFolder + "/Resource/Template/Data.mdb");
  const auto place = static_cast<std::size_t>(GetParam());
  if (place < content.size()) {
    content[place] = static_cast<char>(content[place] + 1);
  } else {
    content = content.substr(0, content.size() / 2);
  }
  PutTemplate(content);
  frmCheckList list(company_.Context());
  EXPECT_THROW(CreateFiles(list), ProgramEnded);
  EXPECT_TRUE(company_.Services().NextBox().starts_with("\"Error\" \"-2147467259\\n"));
  EXPECT_EQ(Left(), "");
  EXPECT_FALSE(company_.GetSession().gDataConn->IsOpen());
}

// A changed byte at the head and inside, and a file that ends too early.
INSTANTIATE_TEST_SUITE_P(Template, DamagedTemplate, testing::Values(100, 30000, 1 << 30));

}  // namespace
}  // namespace lorvane

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "ScriptTestScreens.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

TEST(TestCompany, IsNewFromTheTemplateAndOpen) {
  TestCompany company;
  EXPECT_EQ(company.First("SELECT Count(*) FROM tblAssessable"), "13");
  EXPECT_EQ(company.First("SELECT Count(*) FROM tblIndustries"), "1");
  EXPECT_EQ(company.Ini("Assessment", "LastEntry"), "1/5/2026");
  company.SetIni("Assessment", "Default", "1");
  EXPECT_EQ(company.GetSession().Ini().SectionGet("Assessment").at(1), "Default=1");
}

TEST(ScriptedServices, AnswerFromAListAndWorkInWindows) {
  const ScreenRegistry screens = SmallScreens();
  TestCompany company(screens);
  ScriptedServices& services = company.Services();
  services.Answer(ScriptAnswer::Kind::kCancel);
  services.Answer("text");
  services.InWindow([](Screen& screen) { screen.Close(); });
  EXPECT_EQ(services.MsgBox("Save\r\nit?", box::kYesNoCancel, "Save"), answer::kCancel);
  EXPECT_EQ(services.InputBox("Year?", "Year", ""), "text");
  EXPECT_TRUE(services.OpenScreen("frmSmall", {}));
  EXPECT_EQ(services.NextBox(), R"("Save" "Save\nit?")");
  EXPECT_EQ(services.NextBox(), "");
  EXPECT_EQ(services.NextInput(), R"("Year" "Year?")");
}

TEST(ScriptedServices, FailTheTestOnWhatDoesNotFit) {
  const ScreenRegistry screens = SmallScreens();
  TestCompany company(screens);
  ScriptedServices& services = company.Services();
  EXPECT_NONFATAL_FAILURE(services.MsgBox("?", box::kYesNo, ""), "no answer is left");
  EXPECT_NONFATAL_FAILURE(services.OpenScreen("frmSmall", {}), "nothing is to be done in frmSmall");
  EXPECT_NONFATAL_FAILURE(services.OpenScreen("frmNone", {}), "there is no screen frmNone");
  services.Answer(ScriptAnswer::Kind::kCancel);
  EXPECT_NONFATAL_FAILURE(services.MsgBox("?", box::kYesNo, ""), "can't be answered with cancel");
  EXPECT_NONFATAL_FAILURE(
      {
        ScriptedServices left(company.GetSession(), screens);
        left.Answer("unused");
      },
      "is left over");
}

}  // namespace
}  // namespace lorvane

#include <gtest/gtest.h>

#include <filesystem>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "company/RateTables.h"
#include "company/frmCompany.h"
#include "company/frmSIC.h"
#include "support/FaultyVfs.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

/// A company whose program has rates of its own to change.
class PublishedRates : public testing::Test {
 protected:
  PublishedRates() {
    namespace fs = std::filesystem;
    Session& session = company_.GetSession();
    const std::string shipped = session.programFolder + "/Resource/Sic.mdb";
    session.programFolder = company_.Folder();
    fs::create_directory(company_.Folder() + "/Resource");
    fs::copy_file(shipped, RatesFile());
  }

  [[nodiscard]] std::string RatesFile() const { return company_.Folder() + "/Resource/Sic.mdb"; }
  [[nodiscard]] std::vector<PublishedRate> Read(int year) {
    return RateTables(company_.GetSession()).Read(std::to_string(year));
  }

  TestCompany company_;
};

TEST_F(PublishedRates, AYearIsReplacedWhole) {
  RateTables tables(company_.GetSession());
  EXPECT_EQ(tables.Years(), (std::vector{2026, 2027}));
  const std::vector<PublishedRate> before = tables.Read("2026");
  EXPECT_THROW(static_cast<void>(tables.Read("2031")), RuntimeError);
  const std::vector<PublishedRate> rates{{"0304", "O'Hara's \"trade\"", 1.14}, {"1", "b", 100}};
  tables.Replace(2031, rates);
  tables.Replace(2027, {rates[1]});
  EXPECT_EQ(tables.Years(), (std::vector{2026, 2027, 2031}));
  EXPECT_EQ(Read(2031), rates);
  EXPECT_EQ(Read(2027), std::vector{rates[1]});
  EXPECT_EQ(Read(2026), before);
}

TEST_F(PublishedRates, AFullDiskKeepsTheRatesOfBefore) {
  const std::vector<PublishedRate> before = Read(2027);
  std::vector<PublishedRate> many;
  many.reserve(5000);
  for (int code = 0; code < 5000; ++code) {
    many.push_back({std::to_string(code), std::string(100, 'd'), 1});
  }
  for (const std::int64_t room : {0, 5000, 100000}) {
    FaultyVfs disk;
    {
      RateTables tables(company_.GetSession());
      static_cast<void>(tables.Years());
      disk.FillAfter(room);
      EXPECT_THROW(tables.Replace(2027, many), RuntimeError);
      EXPECT_THROW(tables.Replace(2031, many), RuntimeError);
      disk.Heal();
    }
    EXPECT_EQ(Read(2027), before);
    EXPECT_FALSE(RateTables(company_.GetSession()).Has(2031));
  }
}

TEST_F(PublishedRates, ThousandsOfCodesAreSortedAndFound) {
  std::vector<PublishedRate> many;
  many.reserve(5000);
  for (int code = 4999; code >= 0; --code) {
    many.push_back({std::to_string(10000 + code), "Trade " + std::to_string(code), code / 100.0});
  }
  RateTables(company_.GetSession()).Replace(2026, many);
  company_.Services().InWindow([&](Screen& window) {
    auto& company = dynamic_cast<frmCompany&>(window);
    company_.Services().InWindow([](Screen& lookUpWindow) {
      auto& lookUp = dynamic_cast<frmSIC&>(lookUpWindow);
      ASSERT_EQ(lookUp.lvwSic.Count(), 5000);
      EXPECT_EQ(lookUp.lvwSic.Cell(0, 0), "14999");
      lookUp.lvwSic.UserColumnClick(0);
      EXPECT_EQ(lookUp.lvwSic.Cell(4999, 0), "14999");
      lookUp.txtSIC.SetText("trade 1234");
      lookUp.cmdGo.UserClick();
      EXPECT_EQ(lookUp.lvwSic.ShownText(), "11234");
      EXPECT_EQ(lookUp.lvwSic.RowToShow(), 1234);
      lookUp.cmdOK.UserClick();
    });
    company.industryPage.Row(IndustrySlot::kF).cmdRates.UserClick();
    EXPECT_EQ(company.industryPage.Row(IndustrySlot::kF).txtRate.Text(), "12.34");
    company_.Services().Answer(ScriptAnswer::Kind::kNo);
  });
  frmCompany company(company_.Context());
  company_.Services().ShowModal(company);
}

TEST_F(PublishedRates, MissingOrDamagedRatesAreTold) {
  struct Case {
    const char* content;
    const char* told;
  };
  const Case cases[] = {{nullptr, "does not exist."}, {"", "is not a data file."}};
  for (const Case& row : cases) {
    std::filesystem::remove(RatesFile());
    if (row.content != nullptr) {
      DiskFiles().Write(RatesFile(), row.content);
    }
    frmCompany company(company_.Context());
    frmSIC lookUp(company_.Context(), company);
    lookUp.Load();
    EXPECT_EQ(company_.Services().NextBox(),
              "\"Error\" \"-2147467259\\nThe file " + RatesFile() + " " + row.told + "\"");
    EXPECT_EQ(lookUp.lvwSic.Count(), 0);
    EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
  }
}

}  // namespace
}  // namespace lorvane

#include <gtest/gtest.h>

#include <string>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "employer/cOptions.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

constexpr const char* kSubscript = "\"Error\" \"9\\nSubscript out of range\"";

class Options : public testing::Test {
 protected:
  /// The sections behind the claim contact, each as it should be.
  static std::string Rest(const std::string& location =
                              "[Location]\r\nStreet=L1\r\nCity=L2\r\n"
                              "Province=NB\r\nPostalCode=L4\r\n"
                              "SameAs=No\r\n") {
    return "[Financial]\r\nName=F1\r\nStreet=F2\r\nCity=F3\r\nProvince=ON\r\nPostalCode=F5\r\n"
           "Phone=F6\r\nFax=F7\r\nSameAs=No\r\n" +
           location +
           "[PayrollService]\r\nInternal=Yes\r\nExternal=No\r\nName=P\r\n"
           "[FinancialInstitution]\r\nName=B\r\nAcctNo=12\r\n[MainBusiness]\r\nMainBusiness=M\r\n";
  }

  bool Get(const std::string& content) {
    company_.Disk().Write(company_.ConfigFile(), content);
    return options_.GetOptions(company_.ConfigFile());
  }
  bool Save() { return options_.SaveOptions(company_.ConfigFile()); }
  std::string NextBox() { return company_.Services().NextBox(); }
  [[nodiscard]] std::string ClaimText() const {
    const EmployerContact& claim = options_.Claim;
    return Join({claim.Name, claim.Street, claim.City, claim.Province, claim.PostalCode,
                 claim.Phone, claim.Fax, claim.SameAs},
                "|");
  }

  TestCompany company_;
  cOptions options_{company_.Context()};
};

TEST_F(Options, ValuesAreTakenByTheirPlace) {
  struct Case {
    const char* claim;
    const char* read;
  };
  const Case cases[] = {
      {"Name=a\nStreet=b\nCity=c\nProvince=NS\nPostalCode=e\nPhone=f\nFax=g\nSameAs=No",
       "a|b|c|NS|e|f|g|No"},
      // Spellings, comments and blank lines are the file's own affair.
      {"; who\nname = a=1\nSTREET=;b\n\nCity=\nProvince=NS\nPostalCode=\"e\"\nPhone=é\nFax=\n"
       "SameAs=no",
       "a=1|;b||NS|\"e\"|é||no"},
      // In another order each value loses what the expected key is longer by, or keeps the rest of
      // its own key.
      {"Street=b\nName=Bridget\nCity=c\nProvince=NS\nPostalCode=e\nPhone=f\nSameAs=No\nFax=555",
       "t=b|idget|c|NS|e|f|As=No|"},
      // The last line may be missing.
      {"Name=a\nStreet=b\nCity=c\nProvince=NS\nPostalCode=e\nPhone=f\nFax=g", "a|b|c|NS|e|f|g|"},
  };
  for (const Case& row : cases) {
    EXPECT_TRUE(Get("[Claim]\n" + std::string(row.claim) + "\n" + Rest()));
    EXPECT_EQ(ClaimText(), row.read);
    EXPECT_EQ(NextBox(), "");
    EXPECT_EQ(options_.Finan.Fax + options_.Loc.PostalCode + options_.Loc.Name, "F7L4");
    EXPECT_EQ(options_.Internal + options_.External + options_.ServiceProvider, "YesNoP");
    EXPECT_EQ(options_.FinancialInstitution + options_.AcctNo + options_.MainBusiness, "B12M");
  }
}

TEST_F(Options, WhatStandsBehindABrokenSectionIsReadAllTheSame) {
  for (const std::string location :
       {"", "[Location]\r\n", "[Location]\r\nStreet=L1\r\nCity=x\r\n"}) {
    options_.Loc.SameAs.clear();
    EXPECT_FALSE(Get("[Claim]\r\nName=a\r\n" + Rest(location)));
    EXPECT_EQ(NextBox(), kSubscript);
    EXPECT_EQ(NextBox(), "");
    EXPECT_EQ(options_.Claim.Name + options_.Finan.Name + options_.Loc.SameAs, "aF1");
    EXPECT_EQ(options_.ServiceProvider + options_.AcctNo + options_.MainBusiness, "P12M");
  }
  company_.Disk().Remove(company_.ConfigFile());
  EXPECT_FALSE(options_.GetOptions(company_.ConfigFile()));
  EXPECT_EQ(NextBox(), kSubscript);
}

TEST_F(Options, ASaveWritesEveryKeyInItsOrder) {
  company_.Disk().Write(company_.ConfigFile(), "[Environment]\r\nName=Tern\r\n");
  ASSERT_TRUE(Save());
  EXPECT_EQ(company_.Disk().Read(company_.ConfigFile()),
            "[Environment]\r\nName=Tern\r\n"
            "[Claim]\r\nName=\r\nStreet=\r\nCity=\r\nProvince=\r\nPostalCode=\r\nPhone=\r\nFax=\r\n"
            "SameAs=\r\n"
            "[Financial]\r\nName=\r\nStreet=\r\nCity=\r\nProvince=\r\nPostalCode=\r\nPhone=\r\n"
            "Fax=\r\nSameAs=\r\n"
            "[Location]\r\nStreet=\r\nCity=\r\nProvince=\r\nPostalCode=\r\nSameAs=\r\n"
            "[PayrollService]\r\nInternal=\r\nExternal=\r\nName=\r\n"
            "[FinancialInstitution]\r\nName=\r\nAcctNo=\r\n"
            "[MainBusiness]\r\nMainBusiness=\r\n");
}

TEST_F(Options, AwkwardTextsComeBack) {
  struct Case {
    std::string text;
    std::string read;
  };
  const std::string longest(cOptions::kLongestValue, 'x');
  const Case cases[] = {{"NA", "NA"},
                        {"a=b;c", "a=b;c"},
                        {"[Claim]", "[Claim]"},
                        {"two\r\nlines\nof\rtext", "two lines of text"},
                        {"", ""},
                        {longest, longest}};
  for (const Case& row : cases) {
    EmployerContact& claim = options_.Claim;
    claim = {row.text, row.text, row.text, row.text, row.text, row.text, row.text, "No"};
    options_.Finan = claim;
    options_.Loc = claim;
    options_.ServiceProvider = options_.AcctNo = options_.MainBusiness = row.text;
    ASSERT_TRUE(Save());
    cOptions read(company_.Context());
    ASSERT_TRUE(read.GetOptions(company_.ConfigFile()));
    EXPECT_EQ(read.Claim.Name, row.read);
    EXPECT_EQ(read.Claim.Fax, row.read);
    EXPECT_EQ(read.Finan.SameAs + read.Loc.SameAs, "NoNo");
    EXPECT_EQ(read.ServiceProvider, row.read);
    EXPECT_EQ(read.AcctNo, row.read);
    EXPECT_EQ(read.MainBusiness, row.read);
  }
  // Longer texts, which only another program can have written: a section is read up to its limit,
  // and the one value of its own up to a value's.
  options_.Claim.Name = std::string(300, 'x');
  options_.MainBusiness = std::string(300, 'y');
  ASSERT_TRUE(Save());
  cOptions read(company_.Context());
  ASSERT_TRUE(read.GetOptions(company_.ConfigFile()));
  EXPECT_EQ(Length(read.Claim.Name), 300U);
  EXPECT_EQ(Length(read.MainBusiness), 255U);
}

TEST_F(Options, ASaveThatDoesNotReachTheDiskIsTold) {
  ASSERT_TRUE(
      Get("[Claim]\r\nName=a\r\nStreet=b\r\nCity=c\r\nProvince=NS\r\nPostalCode=e\r\n"
          "Phone=f\r\nFax=g\r\nSameAs=No\r\n" +
          Rest()));
  const auto before = company_.Disk().Read(company_.ConfigFile());
  company_.Disk().Fail("write", "LorvaneConfig.ini", error_number::kDiskFull);
  EXPECT_TRUE(Save()) << "nothing to write";
  options_.AcctNo = "13";
  EXPECT_FALSE(Save());
  EXPECT_EQ(NextBox(), "\"Error\" \"75\\nPath/File access error\"");
  EXPECT_EQ(company_.Disk().Read(company_.ConfigFile()), before);
}

}  // namespace
}  // namespace lorvane

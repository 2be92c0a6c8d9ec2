#include <gtest/gtest.h>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "payments/rules/AssessmentRules.h"

namespace lorvane {
namespace {

struct CeilingCase {
  const char* accWages;
  const char* maxContrib;
  const char* typed;
  const char* shownPayment;
  const char* shownAssessable;
  const char* postedPayment;
  const char* postedAssessable;
  const char* accWagesAfter;
};

constexpr CeilingCase kCeilingCases[] = {
    {"0.00", "40,000.00", "1000", "1,000.00", "1,000.00", "1,000.00", "1,000.00", "1000.00"},
    {"39,500.00", "40,000.00", "1000", "1,000.00", "500.00", "500.00", "500.00", "40000.00"},
    {"39,500.00", "40,000.00", "500", "500.00", "500.00", "500.00", "500.00", "40000.00"},
    {"40,000.00", "40,000.00", "1000", "1,000.00", "1,000.00", "1,000.00", "0.00", "41000.00"},
    {"41,000.00", "40,000.00", "-200", "-200.00", "-200.00", "-200.00", "0.00", "40800.00"},
    {"10,000.00", "40,000.00", "-200", "-200.00", "-200.00", "-200.00", "-200.00", "9800.00"},
    {"0.00", "0.00", "75.5", "75.50", "75.50", "75.50", "0.00", "75.50"},
    {"39,999.99", "40,000.00", ".014", "0.01", "0.01", "0.01", "0.01", "40000.00"},
};

TEST(AssessmentRules, FollowAnEmployeeFromEntryToPosting) {
  for (const CeilingCase& row : kCeilingCases) {
    SCOPED_TRACE(std::string(row.accWages) + " + " + row.typed);
    const PaymentEntry entry = EntryEmployee(row.accWages, row.maxContrib, row.typed);
    EXPECT_EQ(entry.texts.payment, row.shownPayment);
    EXPECT_EQ(entry.texts.assessable, row.shownAssessable);
    EXPECT_FALSE(entry.beep);
    const PaymentTexts posted =
        RecalcEmployeeRow(row.accWages, row.maxContrib, entry.texts.assessable);
    EXPECT_EQ(posted.payment, row.postedPayment);
    EXPECT_EQ(posted.assessable, row.postedAssessable);
    EXPECT_EQ(NextAccWages(row.accWages, ToDouble(posted.payment)), row.accWagesAfter);
  }
}

TEST(AssessmentRules, AnEmptyAmountBeepsAndCountsAsNothing) {
  for (const char* typed : {"", "-", "."}) {
    const PaymentEntry entry = EntryEmployee("100.00", "40,000.00", typed);
    EXPECT_TRUE(entry.beep);
    EXPECT_EQ(entry.texts.payment, "0.00");
    EXPECT_EQ(entry.texts.assessable, "0.00");
  }
  EXPECT_THROW(static_cast<void>(EntryEmployee("0.00", "1.00", std::string(400, '9'))),
               RuntimeError);
}

struct SubContractorCase {
  const char* percent;
  const char* typed;
  const char* payment;
  const char* assessable;
  bool beep;
};

constexpr SubContractorCase kSubContractorCases[] = {
    {"100%", "1000", "1,000.00", "1,000.00", false}, {"50%", "10.25", "10.25", "5.12", false},
    {"50%", "10.35", "10.35", "5.18", false},        {"12.5%", "1000", "1,000.00", "120.00", false},
    {"33.33%", "100", "100.00", "33.00", false},     {"2.5%", "400", "400.00", "10.00", false},
    {"100%", "-100", "-100.00", "-100.00", false},   {"0%", "250", "250.00", "0.00", true},
    {"5%", "900", "900.00", "0.00", true},           {"100.5%", "80", "80.00", "80.00", false},
    {"50%", "1.005", "1.00", "0.50", false},         {"50%", "", "0.00", "0.00", true},
};

TEST(AssessmentRules, TakeTheLabourPartOfASubContractorsInvoice) {
  for (const SubContractorCase& row : kSubContractorCases) {
    SCOPED_TRACE(std::string(row.percent) + " of " + row.typed);
    const PaymentEntry entry = EntrySubContractor(row.percent, row.typed);
    EXPECT_EQ(entry.texts.payment, row.payment);
    EXPECT_EQ(entry.texts.assessable, row.assessable);
    EXPECT_EQ(entry.beep, row.beep);
  }
}

TEST(AssessmentRules, KeepThePostedPercentInItsOwnWay) {
  EXPECT_EQ(PostedPercent("100%"), 100);
  EXPECT_EQ(PostedPercent("2.5%"), 2.5);
  EXPECT_EQ(PostedPercent("50%"), 50);
  EXPECT_EQ(PostedPercent("12.5%"), 12);
  EXPECT_EQ(PostedPercent("100.5%"), 10);
  EXPECT_THROW(static_cast<void>(PostedPercent("5%")), RuntimeError);
}

TEST(AssessmentRules, WorkOutTheAssessmentWithoutRounding) {
  EXPECT_EQ(RemittanceOf(2.35, 1000), 2.35 / 100 * 1000);
  EXPECT_NEAR(RemittanceOf(1.1, 333.33), 3.66663, 1e-12);
  EXPECT_EQ(RemittanceOf(0, 1000), 0);
}

}  // namespace
}  // namespace lorvane

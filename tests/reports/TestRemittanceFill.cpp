#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "reports/RemittanceFill.h"
#include "screen/Screen.h"
#include "screen/ScreenServices.h"
#include "support/RecordingEngine.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

constexpr DateTime kFrom{2026, 2, 1};
constexpr DateTime kTo{2026, 2, 28};
constexpr int kAll = RemittanceFill::kAllIndustries;

constexpr const char* kTriples =
    "PayDateA, AmountA, AssessAmtA, PayDateB, AmountB, AssessAmtB, PayDateC, AmountC, AssessAmtC, "
    "PayDateD, AmountD, AssessAmtD, PayDateE, AmountE, AssessAmtE, PayDateF, AmountF, AssessAmtF";

/// A session over an engine that runs nothing.
class FillStatements : public testing::Test {
 protected:
  FillStatements() { session_.gDataConn->DataOpen(); }

  [[nodiscard]] RemittanceFill MakeFill() { return RemittanceFill(services_.Context()); }

  RecordingEngine engine_;
  DiskFiles files_;
  Session session_{{&engine_, "/program", FixedClock(ScriptedServices::kNow)}, files_};
  ScriptedServices services_{session_, NoScreens()};
};

TEST_F(FillStatements, OfEachPass) {
  RemittanceFill fill = MakeFill();
  const DateTime to{2026, 2, 28, 15, 4, 0};
  constexpr const char* range = "PayDate? >= #2/1/2026# AND PayDate? <= #2/28/2026 3:04:00 PM#";
  const std::string employees =
      "\nSELECT EmployeeId, Date, Amount, AssessAmt, AssessRt, Industry FROM tblEmpRemittance";
  const std::string subContractors =
      "\nSELECT SubContractId, PayDate, Amount, PercentLabour, AssessAmt, Rate, Industry";
  const std::string oneOfEmployees =
      std::string(
          "SELECT TransactionId, EmployeeId, PayDate?, Amount?, AssessAmt?, AssessRt, Ind? "
          "FROM tblEmpHistory WHERE Ind? = -1 AND ") +
      range + employees;
  const std::string oneOfSubContractors =
      std::string(
          "SELECT TransactionId, SubContractId, PayDate?, Amount?, AssessAmt?, "
          "PercentLabour, Rate, Ind? FROM tblSubHistory WHERE Ind? = -1 AND ") +
      range + subContractors + " FROM tblSubRemittance";
  std::string ranges;
  for (const IndustrySlot slot : kAllSlots) {
    EXPECT_FALSE(fill.FillEmployeeRemittance(kFrom, to, NumberOf(slot)));
    EXPECT_EQ(engine_.TakeStatements(), ForSlot(oneOfEmployees, slot));
    EXPECT_FALSE(fill.FillSubContractorRemittance(kFrom, to, NumberOf(slot)));
    EXPECT_EQ(engine_.TakeStatements(), ForSlot(oneOfSubContractors, slot));
    ranges += (ranges.empty() ? "" : " OR ") + ForSlot(range, slot);
  }
  const std::string allEmployees = std::string("SELECT TransactionId, EmployeeId, AssessRt, ") +
                                   kTriples + " FROM tblEmpHistory WHERE " + ranges + employees;
  const std::string allSubContractors =
      std::string("SELECT TransactionId, SubContractId, PercentLabour, Rate, ") + kTriples +
      " FROM tblSubHistory WHERE " + ranges + subContractors + " FROM tblSubRemittance";
  for (const int item : {0, kAll}) {
    EXPECT_FALSE(fill.FillEmployeeRemittance(kFrom, to, item));
    EXPECT_EQ(engine_.TakeStatements(), allEmployees);
    EXPECT_FALSE(fill.FillSubContractorRemittance(kFrom, to, item));
    EXPECT_EQ(engine_.TakeStatements(), allSubContractors);
  }
  EXPECT_FALSE(fill.FillSubContractorSummary());
  EXPECT_EQ(engine_.TakeStatements(), std::string("SELECT TransactionId, SubContractId, ") +
                                          kTriples + ", PercentLabour, Rate FROM tblSubHistory " +
                                          subContractors + ", Name FROM tblSubRemittance");
  fill.ClearEmployeeRemittance();
  EXPECT_EQ(engine_.TakeStatements(), "DELETE FROM tblEmpRemittance");
  bool ok = false;
  fill.ClearSubContractorRemittance(ok);
  EXPECT_TRUE(ok);
  EXPECT_EQ(engine_.TakeStatements(), "DELETE * FROM tblSubRemittance");
  EXPECT_EQ(services_.NextBox(), "");
}

/// A company with industries A to F, two employees and a sub-contractor.
class Fill : public testing::Test {
 protected:
  Fill() {
    company_.Execute(
        "UPDATE tblIndustries SET IndA = 1, DescA = 'Fish Plant', IdentifierA = '0011', IndC = 1, "
        "DescC = 'Net Loft', IdentifierC = '0033', IndF = 1, DescF = 'Wharf', IdentifierF = "
        "'0066'");
    company_.Execute(
        "INSERT INTO tblEmployees (EmployeeId, LastName, FirstName, Initial) VALUES (21, "
        "'O''Brien', "
        "'" +
        std::string(60, 'x') + "', 'K')");
    company_.Execute("INSERT INTO tblEmployees (EmployeeId, LastName) VALUES (22, 'Bell')");
    company_.Execute("INSERT INTO tblSubContract (SubContractId, Name) VALUES (31, 'Smith')");
  }

  void AddPayment(int employee, const std::string& columns, const std::string& values) {
    company_.Execute("INSERT INTO tblEmpHistory (EmployeeId, AssessRt, " + columns + ") VALUES (" +
                     std::to_string(employee) + ", 2.35, " + values + ")");
  }
  void AddInvoice(int subContractor, const std::string& columns, const std::string& values) {
    company_.Execute("INSERT INTO tblSubHistory (SubContractId, PercentLabour, Rate, " + columns +
                     ") VALUES (" + std::to_string(subContractor) + ", 12.5, 3.11, " + values +
                     ")");
  }
  bool Employees(int item) {
    fill_.ClearEmployeeRemittance();
    return fill_.FillEmployeeRemittance(kFrom, kTo, item);
  }
  bool SubContractors(int item) {
    bool ok = false;
    fill_.ClearSubContractorRemittance(ok);
    return fill_.FillSubContractorRemittance(kFrom, kTo, item);
  }
  std::string EmployeeRows() {
    return RowsText(company_.Connection(),
                    "SELECT EmployeeId, Date, Amount, AssessAmt, AssessRt, Industry, LastName FROM "
                    "tblEmpRemittance ORDER BY Id");
  }
  std::string SubContractorRows() {
    return RowsText(company_.Connection(),
                    "SELECT SubContractId, PayDate, Amount, AssessAmt, PercentLabour, Rate, "
                    "Industry, Name FROM tblSubRemittance ORDER BY Id");
  }

  TestCompany company_;
  Screen screen_{company_.Context(), "frmReports", "Reports"};
  ProgressBar progress_{screen_, "prgReport"};
  RemittanceFill fill_{company_.Context(), &progress_};
};

TEST_F(Fill, TakesEverySlotAlikeWithBothLimits) {
  for (const IndustrySlot slot : kAllSlots) {
    const std::string columns = ForSlot("PayDate?, Amount?, AssessAmt?, Ind?", slot);
    AddPayment(21, columns, ForSlot("'2/1/2026', %1.5, %1, 1", slot));
    AddPayment(22, columns, ForSlot("'2/28/2026', %2.5, %2, 1", slot));
    AddPayment(22, columns, "'1/31/2026', 3, 3, 1");
    AddPayment(22, columns, "'3/1/2026', 4, 4, 1");
    AddPayment(22, columns, "'2/28/2026 0:00:01', 4, 4, 1");
    AddPayment(22, columns, "'2/2/2026', 5, 5, 0");
    AddInvoice(31, columns, ForSlot("'2/28/2026', %6.5, %6, 1", slot));
    AddInvoice(31, columns, "'2/2/2026', 7, 7, 0");
  }
  for (const IndustrySlot slot : kAllSlots) {
    EXPECT_TRUE(Employees(NumberOf(slot)));
    EXPECT_EQ(EmployeeRows(), ForSlot("21|2/1/2026|%1.5|%1|2.35|?|O'Brien;"
                                      "22|2/28/2026|%2.5|%2|2.35|?|Bell",
                                      slot));
    EXPECT_EQ(progress_.Value(), 2);
    EXPECT_TRUE(SubContractors(NumberOf(slot)));
    EXPECT_EQ(SubContractorRows(), ForSlot("31|2/28/2026|%6.5|%6|12.5|3.11|?|Smith", slot));
  }
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblEmpHistory"), "36");
  EXPECT_TRUE(Employees(kAll));
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblEmpRemittance WHERE Industry = 'Z'"), "18");
  EXPECT_EQ(company_.First("SELECT FirstName FROM tblEmpRemittance WHERE EmployeeId = 21"),
            std::string(50, 'x'));
  EXPECT_EQ(company_.First("SELECT Initial FROM tblEmpRemittance WHERE EmployeeId = 21"), "K");
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblEmpRemittance WHERE FirstName Is Null"), "12");
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(Fill, AllIndustriesTakeTheFirstSlotWithADate) {
  AddPayment(21, "PayDateC, AmountC, AssessAmtC, IndC, PayDateE, AmountE, AssessAmtE, IndE",
             "'1/9/2026', 31, 32, 1, '2/9/2026', 51, 52, 1");
  AddPayment(22, "AmountA, AssessAmtA, PayDateF, AmountF, AssessAmtF",
             "11, 12, '2/10/2026', 61, 62");
  AddInvoice(31, "PayDateB, AmountB, AssessAmtB, PayDateD, AmountD, AssessAmtD",
             "'2/1/2027', 21, 22, '2/11/2026', 41, 42");
  EXPECT_TRUE(Employees(kAll));
  EXPECT_EQ(EmployeeRows(), "21|1/9/2026|31|32|2.35|Z|O'Brien;22|2/10/2026|61|62|2.35|Z|Bell");
  EXPECT_TRUE(SubContractors(kAll));
  EXPECT_EQ(SubContractorRows(), "31|2/1/2027|21|22|12.5|3.11|Z|Smith");
  EXPECT_TRUE(Employees(5));
  EXPECT_EQ(EmployeeRows(), "21|2/9/2026|51|52|2.35|E|O'Brien");
}

TEST_F(Fill, TheSummaryListsEverythingOnFile) {
  EXPECT_FALSE(fill_.FillSubContractorSummary());
  AddInvoice(31, "PayDateB, AmountB, AssessAmtB", "'2/1/1999', 21, 22");
  AddInvoice(32, "PayDateA, AmountA, AssessAmtA", "'2/1/2030', 11, 12");
  AddInvoice(31, "AmountA", "13");
  EXPECT_TRUE(fill_.FillSubContractorSummary());
  EXPECT_EQ(SubContractorRows(),
            "31|2/1/1999|21|22|12.5|3.11|Z|Smith;32|2/1/2030|11|12|12.5|3.11|Z|Not "
            "assigned;31||||12.5|3.11|Z|Smith");
  EXPECT_EQ(company_.Services().NextBox(), "\"Lorvane\" \"\"");
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(Fill, UnknownPayeesGiveAMessageEachAndKeepTheirRows) {
  for (const int id : {23, 21, 23}) {
    AddPayment(id, "PayDateA, AmountA, IndA", "'2/3/2026', 5, 1");
  }
  EXPECT_TRUE(Employees(1));
  EXPECT_EQ(EmployeeRows(),
            "23|2/3/2026|5||2.35|A|;21|2/3/2026|5||2.35|A|O'Brien;"
            "23|2/3/2026|5||2.35|A|");
  AddInvoice(33, "PayDateA, AmountA, IndA", "'2/3/2026', 5, 1");
  EXPECT_TRUE(SubContractors(1));
  EXPECT_EQ(SubContractorRows(), "33|2/3/2026|5||12.5|3.11|A|");
  for (int box = 0; box < 3; ++box) {
    EXPECT_EQ(company_.Services().NextBox(), "\"Lorvane\" \"\"");
  }
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(Fill, AProgressDisplayThatFailsStopsNothing) {
  EXPECT_THROW(progress_.SetMaximum(0), RuntimeError);
  progress_.SetValue(50);
  EXPECT_FALSE(Employees(3));
  EXPECT_EQ(progress_.Value(), 1);
  EXPECT_EQ(EmployeeRows(), "");
  EXPECT_EQ(company_.Services().NextBox(), "");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
}

TEST_F(Fill, MoreRowsThanTheCounterHoldsAreToldAndThoseWrittenStay) {
  {
    WriteBatch batch(company_.Connection());
    for (int row = 0; row < 32768; ++row) {
      company_.Connection().InsertRow("tblEmpHistory", {{"PayDateA", kFrom}, {"IndA", true}});
    }
    batch.Commit();
  }
  EXPECT_FALSE(Employees(1));
  EXPECT_EQ(company_.Services().NextBox(), "\"Error\" \"6\\nOverflow\"");
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
  EXPECT_TRUE(company_.GetSession().gDataConn->DataOpen());
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblEmpRemittance WHERE Industry = 'A'"), "32767");
  EXPECT_EQ(company_.Services().NextBox(), "");
}

TEST_F(Fill, AnyOtherErrorIsTold) {
  company_.GetSession().gDataConn->DataClose();
  EXPECT_FALSE(fill_.FillEmployeeRemittance(kFrom, kTo, 1));
  EXPECT_EQ(company_.Services().NextBox(),
            "\"Error\" \"3704\\nOperation is not allowed when the object is closed.\"");
  EXPECT_FALSE(fill_.FillSubContractorSummary());
  EXPECT_TRUE(company_.Services().NextBox().starts_with("\"Error\" \"3704\\n"));
  EXPECT_EQ(company_.Services().Pointer(), pointer::kDefault);
}

TEST_F(Fill, HeadingsOfOneIndustryAndOfAll) {
  RemittanceHeadings headings{"before", "0099"};
  for (const int item : {0, 7, -1}) {
    fill_.IndustryHeading(item, headings);
    EXPECT_EQ(headings.IndustryDesc + headings.Identifier, "before0099");
  }
  fill_.IndustryHeading(6, headings);
  EXPECT_EQ(headings.IndustryDesc + headings.Identifier, "Wharf0066");
  fill_.AllIdentifiers(headings);
  EXPECT_EQ(headings.IndustryDesc, "Wharf");
  EXPECT_EQ(headings.Identifier, "0011 | 0033 | 0066");
  company_.Execute("UPDATE tblIndustries SET IndA = 0");
  fill_.AllIdentifiers(headings);
  EXPECT_EQ(headings.Identifier, "0011 | 0033 | 0066 | 0033 | 0066");
  headings.Identifier = "";
  fill_.AllIdentifiers(headings);
  EXPECT_EQ(headings.Identifier, "0033 | 0066");
}

}  // namespace
}  // namespace lorvane

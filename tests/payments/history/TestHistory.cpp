#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "payments/history/CHistoryEmp.h"
#include "payments/history/cHistorySubCon.h"
#include "support/RowsText.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

template <typename History>
void FillSlots(History& record) {
  for (const IndustrySlot slot : kAllSlots) {
    const int number = NumberOf(slot);
    record.PayDate[slot] = "2/" + std::to_string(number) + "/2026";
    record.Amount[slot] = number + 0.5;
    record.AssessAmt[slot] = number + 0.25;
    record.Ind[slot] = number % 2 == 1;
  }
  record.Remittance = 21.1558750001;
}

void Fill(CHistoryEmp& record) {
  FillSlots(record);
  record.EmployeeId = 7;
  record.DtCreate = "1/5/2026 10:00:00 AM";
  record.AssessRt = 2.35;
}

void Fill(cHistorySubCon& record) {
  FillSlots(record);
  record.SubContractId = 7;
  record.Name = "Smith's";
  record.PercentLabour = 12;
  record.Rate = 2.35;
  record.Create = "1/5/2026 10:00:00 AM";
}

using HistoryStatements = RecordingTest;

TEST_F(HistoryStatements, StandToTheLetter) {
  CHistoryEmp employee;
  Fill(employee);
  CheckStatements("payments/history/statements/CHistoryEmp.txt", employee);
  cHistorySubCon subContractor;
  Fill(subContractor);
  CheckStatements("payments/history/statements/cHistorySubCon.txt", subContractor);
}

template <typename History>
void CheckRefusals(RecordingEngine& engine, DataConnection& connection, const std::string& name,
                   const std::string& keyTable, const std::string& insertTable,
                   const std::string& updateTable) {
  History record;
  record.SetDataConnection(&connection);
  record.SelectFilter = 2;
  engine.OnExecute = [](const std::string& statement) {
    return statement.find("tblTableIDs") == std::string::npos ? 0 : 1;
  };
  EXPECT_FALSE(record.AddNew());
  EXPECT_EQ(record.InfoMsg(),
            name + ".AddNew()\r\nCould not insert into this table: " + insertTable);
  EXPECT_FALSE(record.Update());
  EXPECT_EQ(record.InfoMsg(), name + ".Update()\r\nCould Not Update This Table: " + updateTable);
  engine.OnExecute = [](const std::string&) -> std::int64_t { throw RuntimeError(6); };
  History second;
  second.SetDataConnection(&connection);
  EXPECT_FALSE(second.AddNew());
  EXPECT_TRUE(second.InfoMsg().starts_with(
      name + ".GetNewPrimaryKey()\r\nCould not generate a unique ID for this table: " + keyTable +
      " \r\n"));
}

TEST_F(HistoryStatements, TheirRefusalsNameTheTablesThatUsersKnow) {
  CheckRefusals<CHistoryEmp>(engine_, connection_, "cHistoryEmp", "tblEmployees", "tblEmployees",
                             "tblEmpHistory");
  CheckRefusals<cHistorySubCon>(engine_, connection_, "cSubContractorHistory", "tblSubHistory",
                                "tblSubContract", "tblSubHistory");
}

// Which selections of a history can be read, on an empty table and on one with a row.
template <typename History>
std::string Readable(TestCompany& company) {
  std::string text;
  for (std::int32_t select = 0; select <= 7; ++select) {
    History record;
    record.SetDataConnection(company.GetSession().gDataConn.get());
    record.WhereFilter = 7;
    record.SelectFilter = select;
    const bool opened = record.OpenRecordset();
    const bool retrieve = record.InfoMsg().ends_with("in the Retrieve() method");
    const bool file = record.InfoMsg().ends_with("on this Class?");
    text += opened ? "row " : retrieve ? "unread " : file ? "refused " : "none ";
    EXPECT_EQ(record.Eof(), !opened && !file);
  }
  return text;
}

TEST(HistoryOnFile, OnlyTheWholeRowAndTheKeysCanBeRead) {
  TestCompany company;
  EXPECT_EQ(Readable<CHistoryEmp>(company), "none none none none none none none none ");
  EXPECT_EQ(Readable<cHistorySubCon>(company), "none none none none none refused refused refused ");
  CHistoryEmp employee;
  employee.SetDataConnection(company.GetSession().gDataConn.get());
  Fill(employee);
  employee.SelectFilter = 4;
  ASSERT_TRUE(employee.AddNew()) << employee.InfoMsg();
  EXPECT_EQ(employee.SelectFilter, 4);
  cHistorySubCon subContractor;
  subContractor.SetDataConnection(company.GetSession().gDataConn.get());
  Fill(subContractor);
  subContractor.SelectFilter = 6;
  ASSERT_TRUE(subContractor.AddNew()) << subContractor.InfoMsg();
  EXPECT_EQ(
      RowsText(company.Connection(),
               "SELECT TransactionId, PayDateA, AmountA, IndA, PayDateC, AmountC, AssessAmtC, "
               "IndC, AccWages, Remittance FROM tblEmpHistory"),
      "1|||0|2/3/2026|3.5|3.25|-1||21.1559");
  EXPECT_EQ(Readable<CHistoryEmp>(company), "row row unread unread unread unread unread unread ");
  EXPECT_EQ(Readable<cHistorySubCon>(company),
            "row row unread unread unread refused refused refused ");
}

TEST(HistoryOnFile, TellsWhetherAPersonHasEntries) {
  TestCompany company;
  CHistoryEmp record;
  record.SetDataConnection(company.GetSession().gDataConn.get());
  Fill(record);
  record.SelectFilter = 7;
  ASSERT_TRUE(record.AddNew()) << record.InfoMsg();
  record.SelectFilter = CHistoryEmp::kSelectAll;
  EXPECT_FALSE(record.AddNew());
  EXPECT_EQ(record.InfoCode(), error_number::kEngineCommand);
  EXPECT_FALSE(record.Update());
  EXPECT_EQ(record.InfoCode(), error_number::kEngineUnknownTable);
  for (const std::int32_t id : {7, 8}) {
    CHistoryEmp read;
    read.SetDataConnection(company.GetSession().gDataConn.get());
    read.EmployeeId = id;
    read.SelectFilter = CHistoryEmp::kSelectKeys;
    EXPECT_EQ(read.OpenRecordset(), id == 7);
    EXPECT_EQ(read.InfoMsg(), "");
    EXPECT_EQ(read.Remittance, id == 7 ? 21.1559 : 0);
    EXPECT_EQ(read.PayDate[IndustrySlot::kF], id == 7 ? "2/6/2026" : "");
    EXPECT_EQ(read.DtCreate, "");
  }
}

}  // namespace
}  // namespace lorvane

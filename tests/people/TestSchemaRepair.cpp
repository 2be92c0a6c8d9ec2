#include <gtest/gtest.h>

#include "data/Schema.h"
#include "people/cAssessable.h"
#include "people/cEmployee.h"
#include "people/cSubContractor.h"
#include "support/OldCompany.h"
#include "support/RowsText.h"
#include "support/StatementTable.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

/// A company of an earlier release, open.
class OldOpenCompany {
 public:
  explicit OldOpenCompany(const std::string& shape) {
    MakeOldCompany(folder_.Path(), OldShapeNamed(shape));
    connection.DataSource = folder_.File("Data.mdb");
    connection.Password = kDataFilePassword;
    connection.OpenOrRaise();
  }

 private:
  TemporaryFolder folder_;
  std::unique_ptr<Engine> engine_ = MakeFileEngine();

 public:
  DataConnection connection{{engine_.get(), "/", {}}};
};

TEST(SchemaRepair, ARecordMendsWhatItTripsOver) {
  OldOpenCompany company("first");
  EngineConnection& file = company.connection.Connection();
  cEmployee employee;
  employee.SetDataConnection(&company.connection);
  employee.WhereFilter = cEmployee::kWhereKey;
  employee.EmployeeId = 4;
  EXPECT_TRUE(employee.OpenRecordset()) << employee.InfoMsg();
  EXPECT_EQ(employee.LastName, "Archer");
  EXPECT_EQ(employee.InfoMsg(), "");
  EXPECT_EQ(employee.InfoCode(), 0);
  EXPECT_TRUE(employee.SQL().ends_with(" WHERE EmployeeId = 4"));
  employee.FirstName = "Ann";
  employee.Street = "5 Water Street";
  EXPECT_TRUE(employee.Update()) << employee.InfoMsg();

  cSubContractor subContractor;
  subContractor.SetDataConnection(&company.connection);
  EXPECT_TRUE(subContractor.Find()) << subContractor.InfoMsg();
  EXPECT_EQ(subContractor.Name, "Anchor");

  cAssessable contract;
  contract.SetDataConnection(&company.connection);
  contract.OrderByFilter = cAssessable::kOrderByKey;
  EXPECT_TRUE(contract.OpenRecordset()) << contract.InfoMsg();
  EXPECT_EQ(contract.Description, "Clearance Letter Supplied");
  EXPECT_TRUE(contract.AddNew()) << contract.InfoMsg();
  EXPECT_EQ(contract.AssessId, 14);

  for (const char* table : {"tblEmployees", "tblSubContract", "tblAssessable"}) {
    EXPECT_EQ(file.ColumnsOf(table).size(), CompanyTable(table).columns.size()) << table;
  }
}

TEST(SchemaRepair, NothingElseIsMended) {
  // The probe's column is there, another isn't.
  OldOpenCompany company("employees-without-city");
  cEmployee employee;
  employee.SetDataConnection(&company.connection);
  EXPECT_FALSE(employee.OpenRecordset());
  EXPECT_EQ(employee.InfoCode(), error_number::kEngineUnknownColumn);
  EXPECT_TRUE(employee.InfoMsg().starts_with("cEmployee.OpenRecordset()\r\nError #: "));
  EXPECT_TRUE(
      employee.InfoMsg().ends_with("\r\nDid you set the DataConnection property on this Class?"));
  EXPECT_EQ(company.connection.Connection().ColumnsOf("tblEmployees").size(), 43U);
}

// An addition that fails half-way leaves what it has added, and the failure text is the one of the
// first error.
TEST(SchemaRepair, AnAdditionThatIsRefusedIsTold) {
  OldOpenCompany company("employees-without-street");
  company.connection.Connection().Execute("ALTER TABLE tblEmployees ADD Province TEXT(3)");
  cEmployee employee;
  employee.SetDataConnection(&company.connection);
  EXPECT_FALSE(employee.OpenRecordset());
  EXPECT_EQ(employee.InfoCode(), error_number::kEngineUnknownColumn);
  EXPECT_NE(employee.InfoMsg().find("Street"), std::string::npos) << employee.InfoMsg();
  EXPECT_EQ(company.connection.Connection().ColumnsOf("tblEmployees").size(), 35U);
}

class Probes : public RecordingTest {
 protected:
  // Fails every statement that contains the text, with that number.
  void FailOn(const std::string& text, std::int32_t number) {
    engine_.OnQuery = [=](const std::string& statement) -> ResultTable {
      if (statement.find(text) != std::string::npos) {
        throw RuntimeError(number, "as told");
      }
      return {};
    };
  }
  template <typename RecordClass>
  std::string Open() {
    RecordClass record;
    record.SetDataConnection(&connection_);
    record.SelectFilter = 0;
    EXPECT_FALSE(record.OpenRecordset());
    std::string statements = engine_.TakeStatements();
    const std::size_t first = statements.find('\n');
    return first == std::string::npos ? "" : statements.substr(first + 1);
  }
};

TEST_F(Probes, AskForOneColumnAfterTheRightError) {
  constexpr std::int32_t column = error_number::kEngineUnknownColumn;
  constexpr std::int32_t table = error_number::kEngineUnknownTable;
  FailOn("LastName", column);
  EXPECT_EQ(Open<cEmployee>(), "SELECT Street FROM tblEmployees");
  FailOn("BusNum", column);
  EXPECT_EQ(Open<cSubContractor>(), "SELECT Expiry FROM tblSubContract");
  FailOn("ProvId", table);
  EXPECT_EQ(Open<cAssessable>(), "SELECT AssessId FROM tblAssessable");
  FailOn("LastName", table);
  EXPECT_EQ(Open<cEmployee>(), "");
  FailOn("BusNum", error_number::kEngineCommand);
  EXPECT_EQ(Open<cSubContractor>(), "");
  FailOn("ProvId", column);
  EXPECT_EQ(Open<cAssessable>(), "");
}

}  // namespace
}  // namespace lorvane

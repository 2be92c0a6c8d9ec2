#include <gtest/gtest.h>

#include "company/cCompany.h"
#include "support/StatementTable.h"

namespace lorvane {
namespace {

class CompanyRecord : public RecordingTest {
 protected:
  CompanyRecord() {
    record_.BusNum = "104785236";
    record_.LegalName = "O'Hara Ltd";
    record_.AreaPhone = "902";
    record_.Phone = "555-0104";
    record_.AreaFax = "903";
    record_.Fax = "555-0105";
  }

  cCompany record_;
};

TEST_F(CompanyRecord, Statements) {
  record_.CompanyId = 42;
  CheckStatements("company/statements/cCompany.txt", record_);
}

TEST_F(CompanyRecord, Validation) {
  struct Case {
    const char* busNum;
    const char* legalName;
    const char* message;
    const char* field;
  };
  constexpr Case cases[] = {
      {" ", "Tern",
       "Please enter the business number assigned\r\nto you by workers' compensation. ", "BusNum"},
      {"1", "  ", "False", ""},
      {"", "", "False", "BusNum"},
      {"1-2", "Tern", "", ""}};
  record_.SetDataConnection(&connection_);
  for (const Case& row : cases) {
    record_.BusNum = row.busNum;
    record_.LegalName = row.legalName;
    const bool valid = std::string(row.message).empty();
    EXPECT_EQ(record_.AddNew(), valid);
    EXPECT_EQ(record_.InfoMsg(), row.message);
    EXPECT_EQ(record_.Update(), valid);
    EXPECT_EQ(record_.InfoMsg(), row.message);
    EXPECT_EQ(record_.FieldInError(), row.field);
    EXPECT_EQ(record_.InfoCode(), 0);
    EXPECT_EQ(engine_.TakeStatements().empty(), !valid);
  }
}

}  // namespace
}  // namespace lorvane

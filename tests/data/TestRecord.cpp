#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "company/cCompany.h"
#include "support/RowsText.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

void Fill(cCompany& record) {
  record.BusNum = "104785236";
  record.LegalName = "Tern Ltd";
}

class RecordOnFile : public testing::Test {
 protected:
  RecordOnFile() {
    record_.SetDataConnection(company_.GetSession().gDataConn.get());
    Fill(record_);
  }

  void AddThree() {
    for (const char* name : {"Alder", "Birch", "Cedar"}) {
      record_.LegalName = name;
      ASSERT_TRUE(record_.AddNew()) << record_.InfoMsg();
    }
  }

  TestCompany company_;
  cCompany record_;
};

TEST_F(RecordOnFile, AnEmptyTableIsNoFailure) {
  record_.InsertFilter = 3;
  record_.UpdateFilter = 4;
  EXPECT_FALSE(record_.OpenRecordset());
  EXPECT_TRUE(record_.Eof());
  EXPECT_EQ(record_.InfoMsg(), "");
  EXPECT_EQ(record_.InfoCode(), 0);
  EXPECT_EQ(record_.SQL(), "");
  EXPECT_EQ(record_.InsertFilter + record_.UpdateFilter, 0);
  EXPECT_EQ(record_.LegalName, "Tern Ltd");
}

TEST_F(RecordOnFile, MovesOverItsRows) {
  AddThree();
  ASSERT_TRUE(record_.Find());
  EXPECT_EQ(record_.CompanyId, 1);
  EXPECT_FALSE(record_.Eof());
  EXPECT_EQ(record_.SQL(),
            "SELECT CompanyId, BusNum, PrgIdentifier, LegalName, OpAs, Address, City, Province, "
            "PostalCode, AreaPhone, Phone, AreaFax, Fax, Email FROM tblCompany");
  EXPECT_TRUE(record_.MoveNext());
  EXPECT_TRUE(record_.MoveNext());
  EXPECT_EQ(record_.LegalName, "Cedar");
  EXPECT_TRUE(record_.MovePrevious());
  EXPECT_EQ(record_.LegalName, "Birch");
  EXPECT_TRUE(record_.MovePrevious());
  EXPECT_EQ(record_.LegalName, "Alder");
  record_.LegalName = "as typed";
  EXPECT_TRUE(record_.MovePrevious());
  EXPECT_EQ(record_.LegalName, "as typed");
  EXPECT_TRUE(record_.MoveFirst());
  EXPECT_EQ(record_.LegalName, "Alder");
  EXPECT_TRUE(record_.MoveLast());
  EXPECT_EQ(record_.LegalName, "Cedar");
  EXPECT_TRUE(record_.Eof());
  EXPECT_TRUE(record_.MovePrevious());
  EXPECT_FALSE(record_.Eof());
  EXPECT_TRUE(record_.MoveLast());
  record_.UpdateFilter = 5;
  EXPECT_FALSE(record_.MoveNext());
  EXPECT_EQ(record_.InfoMsg(), "");
  EXPECT_TRUE(record_.Eof());
  EXPECT_EQ(record_.UpdateFilter, 0);
  EXPECT_EQ(record_.SQL(), "");
  // Closed now: every move says so.
  EXPECT_FALSE(record_.MoveNext());
  EXPECT_EQ(record_.InfoCode(), 3704);
  EXPECT_EQ(record_.InfoMsg(),
            "cCompany.MoveNext()\r\n\r\nOperation is not allowed when the object is closed.");
  EXPECT_FALSE(record_.MoveFirst());
  EXPECT_TRUE(record_.InfoMsg().starts_with("cCompany.MoveFirst()\r\n"));
  EXPECT_FALSE(record_.MoveLast());
  EXPECT_TRUE(record_.InfoMsg().starts_with("cCompany.MoveLast()\r\n"));
  EXPECT_FALSE(record_.MovePrevious());
  EXPECT_TRUE(record_.InfoMsg().starts_with("cCompany.MovePrevious()\r\n"));
}

TEST_F(RecordOnFile, AnUnknownFilterReadsNothing) {
  AddThree();
  ASSERT_TRUE(record_.Find());
  record_.SelectFilter = 9;
  EXPECT_TRUE(record_.MoveNext());
  EXPECT_EQ(record_.InfoMsg(), "");
  EXPECT_EQ(record_.LegalName, "Alder");
  EXPECT_FALSE(record_.OpenRecordset());
  EXPECT_NE(record_.InfoCode(), 0);
}

TEST_F(RecordOnFile, ARefusedRecordTakesNoKey) {
  record_.BusNum = " ";
  EXPECT_FALSE(record_.AddNew());
  EXPECT_EQ(record_.FieldInError(), "BusNum");
  EXPECT_EQ(record_.InfoCode(), 0);
  EXPECT_EQ(company_.First("SELECT NextId FROM tblTableIDs WHERE TableName = 'tblCompany'"), "0");
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblCompany"), "0");
}

TEST_F(RecordOnFile, AnInsertThatFailsKeepsItsKeyForTheNext) {
  record_.LegalName = std::string(51, 'x');
  EXPECT_FALSE(record_.AddNew());
  EXPECT_EQ(record_.InfoCode(), error_number::kEngineTextTooLong);
  EXPECT_TRUE(record_.InfoMsg().starts_with("cCompany.AddNew()\r\nError #: "));
  record_.LegalName = "Tern Ltd";
  EXPECT_TRUE(record_.AddNew());
  EXPECT_EQ(record_.CompanyId, 1);
  EXPECT_EQ(record_.InfoMsg(), "");
  EXPECT_TRUE(record_.AddNew());
  EXPECT_EQ(RowsText(company_.Connection(), "SELECT CompanyId FROM tblCompany"), "1;2");
}

TEST_F(RecordOnFile, TextsComeBackAsTyped) {
  for (const char* name : {"O'Brien & Sons", "x'); DROP TABLE tblCompany; --", "a\"b;c%_",
                           "\xC3\x89lan \xE2\x82\xAC"}) {
    SCOPED_TRACE(name);
    record_.LegalName = name;
    record_.OpAs = "  Tern ";
    record_.City = "";
    ASSERT_TRUE(record_.AddNew()) << record_.InfoMsg();
    cCompany read;
    read.SetDataConnection(company_.GetSession().gDataConn.get());
    ASSERT_TRUE(read.Find()) << read.InfoMsg();
    ASSERT_TRUE(read.MoveLast());
    EXPECT_EQ(read.LegalName, name);
    EXPECT_EQ(read.OpAs, "Tern");
    EXPECT_EQ(read.City, "");
    ASSERT_TRUE(read.Update());
  }
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblCompany WHERE City Is Null"), "4");
}

TEST_F(RecordOnFile, UpdatesOnlyARowThatIsThere) {
  AddThree();
  record_.CompanyId = 9;
  record_.UpdateFilter = 2;
  EXPECT_FALSE(record_.Update());
  EXPECT_EQ(record_.InfoMsg(), "cCompany.Update()\r\nCould Not Update This Table: tblCompany");
  EXPECT_EQ(record_.InfoCode(), 0);
  EXPECT_EQ(record_.UpdateFilter, 2);
  record_.CompanyId = 2;
  EXPECT_TRUE(record_.Update());
  EXPECT_EQ(record_.UpdateFilter, 0);
  EXPECT_EQ(RowsText(company_.Connection(), "SELECT LegalName FROM tblCompany"),
            "Alder;Cedar;Cedar");
  EXPECT_TRUE(record_.Delete());
  EXPECT_TRUE(record_.Delete());
  EXPECT_EQ(company_.First("SELECT Count(*) FROM tblCompany"), "0");
}

class RecordFailures : public RecordingTest {
 protected:
  RecordFailures() {
    record_.SetDataConnection(&connection_);
    Fill(record_);
  }

  cCompany record_;
};

TEST_F(RecordFailures, NoRowInsertedKeepsTheKey) {
  engine_.OnExecute = [](const std::string& statement) {
    return statement.starts_with("INSERT") ? 0 : 1;
  };
  record_.InsertFilter = 1;
  EXPECT_FALSE(record_.AddNew());
  EXPECT_EQ(record_.InfoMsg(), "cCompany.AddNew()\r\nCould not insert into this table: tblCompany");
  EXPECT_EQ(record_.InfoCode(), 0);
  EXPECT_EQ(record_.InsertFilter, 1);
  EXPECT_EQ(record_.CompanyId, 42);
  static_cast<void>(engine_.TakeStatements());
  engine_.OnExecute = [](const std::string&) { return 1; };
  EXPECT_TRUE(record_.AddNew());
  EXPECT_EQ(record_.InsertFilter, 0);
  EXPECT_EQ(engine_.TakeStatements().find("tblTableIDs"), std::string::npos);
  EXPECT_TRUE(record_.AddNew());
  EXPECT_NE(engine_.TakeStatements().find("tblTableIDs"), std::string::npos);
}

TEST_F(RecordFailures, AnUpdateForgetsTheKeyOfAFailedInsert) {
  engine_.OnExecute = [](const std::string& statement) {
    return statement.starts_with("INSERT") ? 0 : 1;
  };
  EXPECT_FALSE(record_.AddNew());
  EXPECT_TRUE(record_.Update());
  static_cast<void>(engine_.TakeStatements());
  EXPECT_FALSE(record_.AddNew());
  EXPECT_NE(engine_.TakeStatements().find("tblTableIDs"), std::string::npos);
}

TEST_F(RecordFailures, TellOperationErrorListAndDescription) {
  engine_.OnQuery = [](const std::string& statement) -> ResultTable {
    if (statement.find("tblTableIDs") != std::string::npos) {
      return MakeRows({"NextId"}, {{41}});
    }
    throw RuntimeError(error_number::kEngineUnknownColumn, "Which column?");
  };
  engine_.OnExecute = [](const std::string& statement) -> std::int64_t {
    if (statement.find("tblTableIDs") != std::string::npos) {
      return 1;
    }
    throw RuntimeError(error_number::kEngineUnknownColumn, "Which column?");
  };
  struct Case {
    bool (*run)(cCompany&);
    const char* operation;
    const char* addition;
  };
  const Case cases[] = {
      {[](cCompany& record) { return record.OpenRecordset(); }, "OpenRecordset",
       "\r\nDid you set the DataConnection property on this Class?"},
      {[](cCompany& record) { return record.Find(); }, "OpenRecordset",
       "\r\nDid you set the DataConnection property on this Class?"},
      {[](cCompany& record) { return record.AddNew(); }, "AddNew", ""},
      {[](cCompany& record) { return record.Update(); }, "Update", ""},
      {[](cCompany& record) { return record.Delete(); }, "Delete", ""},
  };
  for (const Case& row : cases) {
    EXPECT_FALSE(row.run(record_));
    EXPECT_EQ(record_.InfoMsg(), std::string("cCompany.") + row.operation +
                                     "()\r\nError #: -2147217904\r\nDescription: Which column?\r\n"
                                     "\r\nWhich column?" +
                                     row.addition);
    EXPECT_EQ(record_.InfoCode(), error_number::kEngineUnknownColumn);
    EXPECT_EQ(record_.LegalName, "Tern Ltd");
  }
}

TEST_F(RecordFailures, TellOfAMissingConnectionKeyOrColumn) {
  engine_.OnQuery = [](const std::string&) -> ResultTable {
    throw RuntimeError(error_number::kEngineUnknownTable, "Which table?");
  };
  EXPECT_FALSE(record_.AddNew());
  EXPECT_EQ(record_.InfoMsg(),
            "cCompany.GetNewPrimaryKey()\r\nCould not generate a unique ID for this table: "
            "tblCompany \r\nError #: -2147217865\r\nDescription: Which table?\r\n");
  EXPECT_EQ(record_.InfoCode(), 0);
  EXPECT_EQ(record_.CompanyId, -1);

  engine_.OnQuery = [](const std::string&) {
    return MakeRows({"CompanyId", "BusNum"}, {{5, "1"}});
  };
  EXPECT_FALSE(record_.OpenRecordset());
  EXPECT_TRUE(record_.InfoMsg().starts_with("cCompany.Retrieve()\r\n")) << record_.InfoMsg();
  EXPECT_TRUE(record_.InfoMsg().ends_with(
      "\r\nItem cannot be found in the collection corresponding to the requested name or ordinal."
      "\r\nmost likely a column name is misspelled in the Retrieve() method"));
  EXPECT_EQ(record_.InfoCode(), 3265);
  EXPECT_TRUE(record_.Eof());

  record_.SetDataConnection(nullptr);
  EXPECT_FALSE(record_.OpenRecordset());
  EXPECT_EQ(record_.InfoMsg(),
            "cCompany.OpenRecordset()\r\n\r\nObject variable not set"
            "\r\nDid you set the DataConnection property on this Class?");
  EXPECT_EQ(record_.InfoCode(), 91);
  EXPECT_FALSE(record_.AddNew());
  EXPECT_FALSE(record_.Delete());
}

}  // namespace
}  // namespace lorvane

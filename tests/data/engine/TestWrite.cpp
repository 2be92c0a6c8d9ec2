#include "data/engine/Database.h"
#include "data/engine/EngineTest.h"

namespace lorvane {
namespace {

class Write : public EngineTest {
 protected:
  /// The value that a column has after it was given in an INSERT, or the error.
  std::string Stored(const std::string& column, const std::string& value) {
    Run("DELETE FROM tblEmployees");
    const std::string outcome =
        Run("INSERT INTO tblEmployees (EmployeeId, " + column + ") VALUES (1, " + value + ")");
    return outcome == "1" ? Rows("SELECT " + column + " FROM tblEmployees") : outcome;
  }
};

struct Case {
  const char* column;
  const char* value;
  const char* expected;
};

TEST_F(Write, ConvertsToTheColumnsType) {
  const std::vector<Case> cases{
      {"IndA", "1", "-1"},
      {"IndA", "5", "-1"},
      {"IndA", "0", "0"},
      {"IndA", "Null", "0"},
      {"IndA", "'yes'", "-1"},
      {"IndA", "'maybe'", "80040e07"},
      {"AccWages", "0.03125", "0.0312"},
      {"AccWages", "0.09375", "0.0938"},
      {"AccWages", "-0.03125", "-0.0312"},
      {"AccWages", "'1,234.56'", "1234.56"},
      {"AccWages", "'5%'", "80040e07"},
      {"AccWages", "1e15", "80040e57"},
      {"Visits", "2.5", "2"},
      {"Visits", "3.5", "4"},
      {"Visits", "'-7'", "-7"},
      {"Visits", "True", "-1"},
      {"Visits", "'seven'", "80040e07"},
      {"Visits", "''", "80040e07"},
      {"Visits", "2147483647", "2147483647"},
      {"Visits", "2147483648", "80040e57"},
      {"Rate", "'0.0184'", "0.0184"},
      {"Rate", "1E-05", "0.00001"},
      {"Rate", "'x'", "80040e07"},
      {"LastName", "'1234567890'", "1234567890"},
      {"LastName", "'12345678901'", "80040e57"},
      {"LastName", "'ÉÉÉÉÉÉÉÉÉÉ'", "ÉÉÉÉÉÉÉÉÉÉ"},
      {"LastName", "0.50", "0.5"},
      {"LastName", "''", ""},
      {"LastName", "'O''B \"x\"'", "O'B \"x\""},
      {"LastName", "\"say \"\"a\"\"\"", "say \"a\""},
      {"LastName", "'a' + 'b'", "ab"},
      {"Notes", "'O''Brien; DROP TABLE tblEmployees'", "O'Brien; DROP TABLE tblEmployees"},
      {"Notes", "#1/5/2004#", "1/5/2004"},
      {"Birth", "'1/5/2004'", "1/5/2004"},
      {"Birth", "'2004-01-05 8:15 PM'", "1/5/2004 8:15:00 PM"},
      {"Birth", "#13/5/2004#", "5/13/2004"},
      {"Birth", "37991.5", "1/5/2004 12:00:00 PM"},
      {"Birth", "'2/30/2004'", "80040e07"},
      {"Birth", "99999999", "80040e57"},
      {"Birth", "#1/1/1899#", "1/1/1899"},
      {"Date", "Null", ""},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(Stored(test.column, test.value), test.expected) << test.column << " " << test.value;
  }
}

TEST_F(Write, ConvertsWhatItComputesLikeLiterals) {
  Run("INSERT INTO tblEmployees (EmployeeId, LastName, Birth, AccWages, Visits) VALUES (1, 'Pike', "
      "#1/5/2004#, 10.25, 7)");
  const auto after = [&](const std::string& assignment, const std::string& column) {
    const std::string outcome = Run("UPDATE tblEmployees SET " + assignment);
    return outcome == "1" ? Rows("SELECT " + column + " FROM tblEmployees") : outcome;
  };
  EXPECT_EQ(after("Visits = Visits + 1", "Visits"), "8");
  EXPECT_EQ(after("Visits = Visits / 3", "Visits"), "3");
  EXPECT_EQ(after("AccWages = AccWages / 3", "AccWages"), "3.4167");
  EXPECT_EQ(after("IndA = Visits", "IndA"), "-1");
  EXPECT_EQ(after("Birth = Birth + 31", "Birth"), "2/5/2004");
  EXPECT_EQ(after("Date = Birth, Notes = Birth", "Date, Notes"), "2/5/2004|2/5/2004");
  EXPECT_EQ(after("Rate = Birth", "Rate"), "38022");
  EXPECT_EQ(after("LastName = LastName + 'Pike' + LastName", "LastName"), "80040e57");
  EXPECT_EQ(after("Visits = LastName", "Visits"), "80040e07");
  EXPECT_EQ(after("Visits = LastName + 1", "Visits"), "80040e07");
  EXPECT_EQ(after("LastName = Visits, Visits = Null", "LastName, Visits"), "3|");
}

TEST_F(Write, CountsTheRowsItTouches) {
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(connection_->InsertRow("tblTableIDs", {{"TableName", std::string("t")}}), i);
  }
  EXPECT_EQ(Run("UPDATE tblTableIDs SET NextId = 4 WHERE Id >= 2"), "2");
  EXPECT_EQ(Run("UPDATE tblTableIDs SET NextId = 4 WHERE Id = 9"), "0");
  EXPECT_EQ(Run("DELETE FROM tblTableIDs WHERE TableName = 'T' AND Id = 2"), "1");
  EXPECT_EQ(Run("DELETE * FROM tblTableIDs"), "2");
  EXPECT_EQ(Run("INSERT INTO tblTableIDs VALUES (Null, 'tbl', 5);"), "1");
  EXPECT_EQ(connection_->InsertRow("tblEmployees", {}), 1);
  EXPECT_EQ(Rows("SELECT IndA, LastName FROM tblEmployees"), "0|");
}

TEST_F(Write, TellsItsErrorsApart) {
  Run("INSERT INTO tblEmployees (EmployeeId) VALUES (1)");
  const std::vector<std::pair<const char*, const char*>> cases{
      {"INSERT INTO tblEmployees (EmployeeId) VALUES (1)", "80040e2f"},
      {"UPDATE tblEmployees SET EmployeeId = Null", "80040e2f"},
      {"INSERT INTO tblEmployees (Nix) VALUES (1)", "80040e14"},
      {"INSERT INTO tblEmployees (EmployeeId, Visits) VALUES (2)", "80040e14"},
      {"INSERT INTO tblEmployees (EmployeeId, Visits, visits) VALUES (2, 3, 4)", "80040e14"},
      {"INSERT INTO tblTableIDs(TableName, lNextId, LastUpdate) VALUES ( 'x',1,'1/5/2026', )",
       "80040e14"},
      {"INSERT INTO tblEmployees (LastName) VALUES (Pike)", "80040e10"},
      {"INSERT INTO tblNix (EmployeeId) VALUES (1)", "80040e37"},
      {"UPDATE tblEmployees SET Nix = 1", "80040e10"},
      {"UPDATE tblEmployees SET Visits = 1 WHERE Nix = 1", "80040e10"},
      {"UPDATE tblEmployees SET Visits = 1, visits = 2", "80040e14"},
      {"UPDATE tblEmployees SET Visits = Count(*)", "80040e14"},
      {"UPDATE tblHistoryEmp SET EmployeeId = 1", "80040e37"},
      {"DELETE FROM tblEmployees WHERE Nix = 1", "80040e10"},
      {"DELETE * FROM tblNix", "80040e37"},
      {"INSERT INTO tblEmployees (EmployeeId) VALUES (2); DELETE FROM tblEmployees", "80040e14"},
  };
  for (const auto& [statement, expected] : cases) {
    EXPECT_EQ(Run(statement), expected) << statement;
  }
  EXPECT_EQ(Rows("SELECT EmployeeId, Visits FROM tblEmployees"), "1|");
}

TEST_F(Write, DescribesAnErrorInWords) {
  Run("INSERT INTO tblEmployees (LastName) VALUES ('A much too long name')");
  EXPECT_EQ(connection_->Errors().at(0).number, error_number::kEngineTextTooLong);
  EXPECT_EQ(connection_->Errors().at(0).description,
            "The text \"A much too long name\" is too long for the column LastName, which takes 10 "
            "characters.");
  Rows("SELECT EmployeeId FROM tblEmployees");
  EXPECT_EQ(connection_->Errors().size(), 1U);
}

TEST_F(Write, AltersTables) {
  Run("INSERT INTO tblEmployees (EmployeeId, LastName, Birth, Date) VALUES (7, 'Pike', #1/5/2004#, "
      "#1/6/2004#)");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ADD COLUMN Inactive YESNO"), "0");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ADD Phone TEXT(14)"), "0");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ADD Phone TEXT(14)"), "80040e14");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ALTER COLUMN LastName TEXT(3)"), "80040e57");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ALTER COLUMN lastname TEXT(100)"), "0");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ALTER COLUMN Birth TEXT(20)"), "0");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ALTER COLUMN Nix TEXT(20)"), "80040e14");
  EXPECT_EQ(Run("ALTER TABLE tblNix ADD Phone TEXT(14)"), "80040e37");
  EXPECT_EQ(Run("ALTER TABLE tblEmployees ADD Size SHORTISH"), "80040e14");
  EXPECT_EQ(Run("UPDATE tblEmployees SET LastName = 'A much longer name'"), "1");
  EXPECT_EQ(Rows("SELECT EmployeeId, LastName, Birth, Date, Inactive, Phone FROM tblEmployees"),
            "7|A much longer name|1/5/2004|1/6/2004|0|");
  EXPECT_EQ(connection_->InsertRow("tblEmployees", {}), 8);
}

TEST_F(Write, FollowsASchemaThatAnotherConnectionChanges) {
  const std::unique_ptr<EngineConnection> other = engine_.Open(path_, kPassword);
  EXPECT_EQ(Rows(*other, "SELECT Count(*) FROM tblEmployees"), "0");
  Run("ALTER TABLE tblEmployees ADD Phone TEXT(14)");
  Run("ALTER TABLE tblEmployees ALTER COLUMN LastName TEXT(20)");
  connection_->CreateTable("tblAssets", {{"AssetId", ColumnType::kLong, 0, true}});
  EXPECT_EQ(other->Query("SELECT * FROM tblEmployees").columns.size(), 10U);
  EXPECT_EQ(
      other->Execute("INSERT INTO tblEmployees (LastName, Phone) VALUES ('A longer name', 5)"), 1);
  EXPECT_EQ(other->Execute("INSERT INTO tblAssets (AssetId) VALUES (4)"), 1);
  EXPECT_TRUE(other->HasTable("TBLASSETS"));
}

TEST_F(Write, DeclaresTypesThatOtherToolsRead) {
  Run("ALTER TABLE tblEmployees ALTER COLUMN LastName TEXT(75)");
  Run("INSERT INTO tblEmployees (LastName, Birth, AccWages, IndA) VALUES ('Pike', '1/5/2004', "
      "0.03125, 1)");
  connection_.reset();
  // As any tool that knows the password opens the file.
  sql::Database file(path_);
  file.Run("PRAGMA key = 'quay 9'");
  file.Run("PRAGMA cipher_compatibility = 3");
  EXPECT_EQ(file.ReadText("SELECT sql FROM sqlite_master WHERE name = 'tblEmployees'"),
            "CREATE TABLE \"tblEmployees\" (\"EmployeeId\" INTEGER PRIMARY KEY, \"LastName\" "
            "TEXT(75), \"Notes\" TEXT, \"Birth\" DATE, \"AccWages\" CURRENCY, \"Rate\" DOUBLE, "
            "\"Visits\" INTEGER, \"IndA\" YESNO NOT NULL DEFAULT 0, \"Date\" DATE)");
  EXPECT_EQ(file.ReadText("SELECT Birth || ' ' || AccWages || ' ' || IndA FROM tblEmployees"),
            "2004-01-05 0.0312 -1");
  EXPECT_EQ(file.ReadNumber("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%COLLATE%'"), 0);
}

TEST_F(Write, ReadsBackTheCatalog) {
  EXPECT_EQ(connection_->TableNames(), (std::vector<std::string>{"tblEmployees", "tblTableIDs"}));
  EXPECT_TRUE(connection_->HasTable("TBLTABLEIDS"));
  EXPECT_FALSE(connection_->HasTable("sqlite_master"));
  const std::vector<Column> columns = connection_->ColumnsOf("tbltableids");
  ASSERT_EQ(columns.size(), 3U);
  EXPECT_TRUE(columns[0].isKey);
  EXPECT_EQ(columns[1].size, 50);
  EXPECT_EQ(columns[1].type, ColumnType::kText);
  EXPECT_FALSE(columns[2].isKey);
  EXPECT_EQ(Try([&] {
              connection_->CreateTable("TBLTABLEIDS", {{"Id", ColumnType::kLong}});
              return std::string();
            }),
            "80040e14");
}

}  // namespace
}  // namespace lorvane

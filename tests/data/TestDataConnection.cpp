#include <gtest/gtest.h>

#include <deque>
#include <utility>

#include "basic/RuntimeError.h"
#include "support/StatementTable.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

struct StringCase {
  std::int16_t provider;
  bool odbc;
  const char* login;
  const char* password;
  const char* database;
  const char* text;
};

constexpr StringCase kStringCases[] = {
    {1, false, "sa", "quay 9", "db",
     "Provider        = Microsoft.Jet.OLEDB.4.0;Data Source     = /c/Data.mdb;"
     "Jet OLEDB:Database Password = quay 9;"},
    {2, false, "sa", "quay 9", "db",
     "Provider        = sqloledb;Data Source     = /c/Data.mdb;Initial Catalog = cat;"
     "User Id         = sa;Password        = quay 9; "},
    {3, false, "", "", "",
     "Provider        = Microsoft.Jet.OLEDB.4.0;Data Source     = /c/Data.mdb;"
     "Initial Catalog = cat;User Id         = ;Password        = ; "},
    {1, true, "", "quay 9", "", "DSN=books"},
    {2, true, "", "quay 9", "db", "DSN=books;DATABASE = db"},
    {1, true, "sa", "", "db", "DSN=books;UID=sa;PWD=;DATABASE = db"},
    {1, true, "sa", "quay 9", "", "DSN=books;UID=sa;PWD=quay 9"},
};

TEST(DataConnection, ComposesItsConnectionString) {
  RecordingEngine engine;
  for (const StringCase& row : kStringCases) {
    SCOPED_TRACE(row.text);
    DataConnection connection({&engine, "/program", {}});
    EXPECT_EQ(connection.DataSource, "/program/Resource/Sample Data/Data.mdb");
    connection.SetProviderConst(row.provider);
    connection.UseODBC = row.odbc;
    connection.LoginId = row.login;
    connection.Password = row.password;
    connection.DatabaseName = row.database;
    connection.DSN = "books";
    connection.InitialCatalog = "cat";
    connection.DataSource = "/c/Data.mdb";
    EXPECT_EQ(connection.ConnectString(), row.text);
    EXPECT_EQ(connection.MakeTwin()->ConnectString(), row.text);
    EXPECT_EQ(connection.DataOpen(), !row.odbc && row.provider == 1);
  }
}

TEST(DataConnection, AFailedOpenLeavesItClosedAndCloseIsForGood) {
  TestCompany company;
  DataConnection& connection = *company.GetSession().gDataConn;
  EXPECT_EQ(connection.ErrorHandler(), "");
  for (const std::string& source : {std::string(), company.Folder(), company.ConfigFile()}) {
    SCOPED_TRACE(source);
    connection.DataSource = company.DataFile();
    ASSERT_TRUE(connection.DataOpen());
    connection.DataSource = source;
    EXPECT_FALSE(connection.DataOpen());
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_THROW(static_cast<void>(connection.Connection()), RuntimeError);
    EXPECT_TRUE(connection.ErrorHandler().starts_with("Error #: "));
    EXPECT_NE(connection.ErrorMsg().find("\r\nDescription: "), std::string::npos);
    const std::string once = connection.ErrorMsg();
    EXPECT_FALSE(connection.DataOpen());
    EXPECT_EQ(connection.ErrorHandler(), once);
  }
  connection.DataSource = company.DataFile();
  connection.Password = "";
  EXPECT_FALSE(connection.DataOpen());
  connection.Password = kDataFilePassword;
  EXPECT_TRUE(connection.DataOpen());
  connection.DataClose();
  connection.DataClose();
  EXPECT_FALSE(connection.DataOpen());
}

TEST(DataConnection, TheErrorListStaysUntilTheNextError) {
  TestCompany company;
  DataConnection& connection = *company.GetSession().gDataConn;
  EXPECT_THROW(company.Execute("DELETE FROM tblNowhere"), RuntimeError);
  const std::string text = connection.ErrorHandler();
  EXPECT_TRUE(text.starts_with("Error #: -2147217865\r\nDescription: ")) << text;
  EXPECT_TRUE(text.ends_with("\r\n"));
  company.Execute("DELETE FROM tblAssets");
  EXPECT_EQ(connection.ErrorHandler(&company.Connection()), text);
}

class TableIDGet : public RecordingTest {
 protected:
  /// Lets the statements that begin so fail, each error once, in turn.
  void Fail(const std::string& beginning, std::deque<std::int32_t> errors) {
    failures_.emplace_back(beginning, std::move(errors));
    const auto raise = [this](const std::string& statement) {
      for (auto& [start, numbers] : failures_) {
        if (statement.starts_with(start) && !numbers.empty()) {
          const std::int32_t number = numbers.front();
          numbers.pop_front();
          throw RuntimeError(number, "no luck");
        }
      }
    };
    engine_.OnQuery = [raise, answer = engine_.OnQuery](const std::string& statement) {
      raise(statement);
      return answer(statement);
    };
    engine_.OnExecute = [raise, answer = engine_.OnExecute](const std::string& statement) {
      raise(statement);
      return answer(statement);
    };
  }

  /// The counter reads so, one after the other; no row behind the last.
  void CounterReads(std::deque<std::int32_t> values) {
    engine_.OnQuery = [values](const std::string& statement) mutable {
      if (statement.find("tblTableIDs") == std::string::npos || values.empty()) {
        return ResultTable();
      }
      const std::int32_t value = values.front();
      values.pop_front();
      return MakeRows({"Id", "NextId"}, {{1, value}});
    };
  }

 private:
  std::vector<std::pair<std::string, std::deque<std::int32_t>>> failures_;
};

constexpr const char* kRead = "SELECT * FROM tblTableIDs WHERE TableName = 'tblAssets'";
constexpr const char* kCount =
    "UPDATE tblTableIDs SET NextId = NextId + 1 WHERE TableName = 'tblAssets'";

TEST_F(TableIDGet, CountsOn) {
  EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), 42);
  EXPECT_EQ(engine_.TakeStatements(), std::string(kRead) + "\n" + kCount);
  CounterReads({0});
  EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), 1);
}

TEST_F(TableIDGet, ReadsAnewWhenNoRowWasCounted) {
  CounterReads({41, 45});
  engine_.OnExecute = [calls = 0](const std::string&) mutable { return calls++; };
  EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), 46);
  EXPECT_EQ(engine_.TakeStatements(),
            std::string(kRead) + "\n" + kCount + "\n" + kRead + "\n" + kCount);
}

TEST_F(TableIDGet, FailsWithoutACounterAfterFiveTries) {
  constexpr std::int32_t command = error_number::kEngineCommand;
  for (const Value& highest : {Value(12), Value()}) {
    engine_.OnQuery = [&](const std::string& statement) {
      return statement.starts_with("SELECT Max") ? MakeRows({"lMaxValue"}, {{highest}})
                                                 : ResultTable();
    };
    engine_.OnExecute = [](const std::string&) -> std::int64_t {
      throw RuntimeError(command, "no such column");
    };
    EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), -1);
    std::string statements =
        std::string(kRead) + "\nSELECT Max(AssetId) As lMaxValue  FROM tblAssets";
    for (int attempt = 0; attempt < 5; ++attempt) {
      statements +=
          "\nINSERT INTO tblTableIDs(TableName, lNextId, LastUpdate) VALUES ( 'tblAssets',";
      statements +=
          IsNull(highest) ? "1,'1/5/2026 10:00:00 AM', )" : "13,'1/5/2026 10:00:00 AM', )";
    }
    EXPECT_EQ(engine_.TakeStatements(), statements);
    EXPECT_EQ(connection_.ErrorMsg(), "Error #: -2147217900\r\nDescription: no such column\r\n");
  }
}

TEST_F(TableIDGet, TriesAgainOnlyErrorsInACommandAndFiveInAll) {
  constexpr std::int32_t command = error_number::kEngineCommand;
  struct Case {
    std::deque<std::int32_t> reading;
    std::deque<std::int32_t> counting;
    std::int32_t key;
  };
  const Case cases[] = {
      {{command, command}, {command, command}, 42},
      {{command, command, command, command}, {command}, -1},
      {{command, command, command, command, command}, {}, -1},
      {{error_number::kEngineUnknownTable}, {}, -1},
      {{}, {error_number::kEngineFailure}, -1},
  };
  for (const Case& row : cases) {
    Fail("SELECT *", row.reading);
    Fail("UPDATE", row.counting);
    EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), row.key);
  }
  CounterReads({2147483647});
  EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), -1);
  connection_.DataClose();
  EXPECT_EQ(connection_.TableIDGet("tblAssets", "AssetId"), -1);
}

TEST(TableIDGetOnFile, GivesKeysOfANewCompany) {
  TestCompany company;
  DataConnection& connection = *company.GetSession().gDataConn;
  EXPECT_EQ(connection.TableIDGet("tblEmployees", "EmployeeId"), 1);
  EXPECT_EQ(connection.TableIDGet("TBLEMPLOYEES", "EmployeeId"), 2);
  EXPECT_EQ(connection.TableIDGet("tblAssessable", "AssessId"), 14);
  company.Execute("UPDATE tblTableIDs SET NextId = Null WHERE TableName = 'tblAssets'");
  EXPECT_EQ(connection.TableIDGet("tblAssets", "AssetId"), -1);
  company.Execute("DELETE FROM tblTableIDs WHERE TableName = 'tblAssets'");
  EXPECT_EQ(connection.TableIDGet("tblAssets", "AssetId"), -1);
  EXPECT_TRUE(connection.ErrorMsg().starts_with("Error #: -2147217900\r\n"));
}

}  // namespace
}  // namespace lorvane

#include "data/engine/Collation.h"
#include "data/engine/EngineTest.h"

namespace lorvane {
namespace {

struct Case {
  const char* statement;
  const char* expected;
};

class Select : public EngineTest {
 protected:
  Select() {
    for (const char* row :
         {"1, 'Pike', 'deck [2]', '1/5/2004', 100.5, 0.0184, 3, 1, #1/5/2004 10:00:00 AM#",
          "2, 'côté', '100%', #12/31/2003#, 0.1, 2, Null, 0, Null",
          "3, 'Cote', 'a_b', Null, 0.2, Null, 5, Yes, #1/5/2004#"}) {
      connection_->Execute(
          "INSERT INTO tblEmployees (EmployeeId, LastName, Notes, Birth, AccWages, Rate, Visits, "
          "IndA, Date) VALUES (" +
          std::string(row) + ")");
    }
  }

  void Check(const std::vector<Case>& cases) {
    for (const Case& test : cases) {
      EXPECT_EQ(Rows(test.statement), test.expected) << test.statement;
    }
  }

  void CheckWhere(const std::vector<Case>& cases) {
    for (const Case& test : cases) {
      EXPECT_EQ(Rows("SELECT EmployeeId FROM tblEmployees WHERE " + std::string(test.statement) +
                     " ORDER BY EmployeeId"),
                test.expected)
          << test.statement;
    }
  }
};

TEST_F(Select, FindsRowsByEveryKindOfCondition) {
  CheckWhere({
      {"LastName = 'PIKE'", "1"},
      {"lastname = 'CÔTÉ'", "2"},
      {"LastName <> 'pike'", "2;3"},
      {"LastName = Null", ""},
      {"LastName IN ('cote', \"Pike\")", "1;3"},
      {"LastName NOT IN ('cote', 'Pike')", "2"},
      {"LastName LIKE 'c_t%'", "2;3"},
      {"LastName LIKE 'CÔ%'", "2"},
      {"LastName NOT LIKE '%[e-k]'", "2"},
      {"Notes LIKE '%[[]2]'", "1"},
      {"Notes LIKE '1[!a-z]0[%]'", "2"},
      {"Notes LIKE 'a[_]b'", "3"},
      {"EmployeeId LIKE '[12]'", "1;2"},
      {"Birth LIKE '%/2003'", "2"},
      {"Birth IS NULL", "3"},
      {"NOT Birth IS NULL", "1;2"},
      {"Birth = #1/5/2004#", "1"},
      {"Birth = '2004-01-05'", "1"},
      {"Birth = 37986", "2"},
      {"Birth = 37991", "1"},
      {"Birth BETWEEN #12/31/2003# AND '1/5/2004'", "1;2"},
      {"Date > #1/5/2004#", "1"},
      {"Date >= #1/5/2004# AND Date <= #1/5/2004#", "3"},
      {"Date = 37991 + 10/24", "1"},
      {"IndA = -1", "1;3"},
      {"IndA = 1", ""},
      {"IndA = True", "1;3"},
      {"IndA = 'no'", "2"},
      {"IndA", "1;3"},
      {"NOT IndA", "2"},
      {"AccWages + AccWages + AccWages = 0.3", "2"},
      {"AccWages = '100.5'", "1"},
      {"Visits = 3 OR Visits = 5 AND EmployeeId = 9", "1"},
      {"(Visits = 3 OR Visits = 5) AND EmployeeId = 3", "3"},
      {"Visits BETWEEN 4 AND 6", "3"},
      {"Visits NOT BETWEEN 4 AND 6", "1"},
      {"NOT Visits = 3", "3"},
      {"Visits = 2 * -3 + 9", "1"},
      {"Notes = 100", ""},
      {"EmployeeId IN (1, '3', 2 + 7)", "1;3"},
      {"tblEmployees.EmployeeId = 2", "2"},
      {"[LastName] = 'pike'", "1"},
  });
}

// Files are emptied at year end by such a chain: every date is after it, and what isn't null stays
// below the next number.
TEST_F(Select, ComparisonsGiveNumbersAndChain) {
  CheckWhere({
      {"Birth >= 01/01/2003<= 12/31/2003", "1;2"},
      {"(Visits = 3) = -1", "1"},
      {"(Visits = 3) = 0", "3"},
      {"(Visits > 1) + (Visits > 4) = -2", "3"},
  });
  Check({
      {"SELECT Visits = 3, Birth >= 1/1/2003 FROM tblEmployees ORDER BY EmployeeId",
       "-1|-1;|-1;0|"},
      {"SELECT NOT IndA, LastName LIKE 'p%', Birth IS NULL FROM tblEmployees WHERE EmployeeId = 1",
       "0|-1|0"},
      {"SELECT 7 / 2, 7 * 2, -Visits, 1 - -1 FROM tblEmployees WHERE EmployeeId = 1",
       "3.5|14|-3|2"},
      {"SELECT 1 / 0", "b"},
  });
}

TEST_F(Select, SortsGroupsAndSums) {
  Check({
      {"SELECT LastName FROM tblEmployees ORDER BY LastName", "Cote;côté;Pike"},
      {"SELECT LastName FROM tblEmployees ORDER BY LastName DESC;", "Pike;côté;Cote"},
      {"SELECT EmployeeId FROM tblEmployees ORDER BY IndA, EmployeeId DESC", "3;1;2"},
      {"SELECT TOP 2 EmployeeId FROM tblEmployees ORDER BY 1 DESC", "3;2"},
      {"SELECT DISTINCT IndA FROM tblEmployees ORDER BY IndA", "-1;0"},
      {"SELECT Count(*), Count(Birth), Sum(AccWages), Min(Birth), Max(LastName), Avg(Visits) FROM "
       "tblEmployees",
       "3|2|100.8|12/31/2003|Pike|4"},
      {"SELECT Max(Visits) As lMaxValue  FROM tblEmployees WHERE Visits > 99", ""},
      {"SELECT IndA, Sum(AccWages) AS Total FROM tblEmployees GROUP BY IndA ORDER BY Total",
       "0|0.1;-1|100.7"},
      {"SELECT IndA FROM tblEmployees GROUP BY IndA HAVING Count(*) > 1", "-1"},
      {"SELECT LastName, Count(*) FROM tblEmployees", "80040e14"},
      {"SELECT Sum(LastName) FROM tblEmployees", "80040e07"},
      {"SELECT EmployeeId FROM tblEmployees WHERE Count(*) > 1", "80040e14"},
      {"SELECT Sum(Count(*)) FROM tblEmployees", "80040e14"},
  });
}

TEST_F(Select, NamesAndTypesItsColumns) {
  EXPECT_EQ(NamesOf("SELECT AccWages IndA, LastName AS Name, Max(Visits) FROM tblEmployees "
                    "GROUP BY AccWages, LastName"),
            "IndA,Name,Expr1000");
  EXPECT_EQ(NamesOf("select * from TBLEMPLOYEES"),
            "EmployeeId,LastName,Notes,Birth,AccWages,Rate,Visits,IndA,Date");
  const ResultTable result = connection_->Query(
      "SELECT AccWages IndA, IndA, Date, Visits, Rate, Notes, Max(Birth), Visits + 1, Rate + 1 "
      "FROM tblEmployees WHERE EmployeeId = 1 GROUP BY AccWages, IndA, Date, Visits, Rate, Notes");
  const std::vector<Value> expected{Currency::FromDouble(100.5),
                                    true,
                                    DateTime{2004, 1, 5, 10, 0, 0},
                                    3,
                                    0.0184,
                                    std::string("deck [2]"),
                                    DateTime{2004, 1, 5},
                                    4,
                                    1.0184};
  EXPECT_EQ(result.rows, std::vector<std::vector<Value>>{expected});
  EXPECT_EQ(result.columns[0].type, ColumnType::kCurrency);
  EXPECT_EQ(result.columns[5].type, ColumnType::kText);
  EXPECT_EQ(result.columns[7].type, ColumnType::kUnknown);
}

TEST_F(Select, OrdersTextsLikeADictionary) {
  EXPECT_EQ(CompareTexts("Pike", "PIKE"), 0);
  EXPECT_LT(CompareTexts("cote", "Côté"), 0);
  EXPECT_LT(CompareTexts("Côté", "COTTAGE"), 0);
  EXPECT_GT(CompareTexts("z", "É"), 0);
  EXPECT_NE(CompareTexts("", " "), 0);
}

TEST_F(Select, RefusesWhatItDoesNotUnderstand) {
  const std::string deep(5000, '(');
  const std::string longChain = [] {
    std::string chain = "1";
    for (int i = 0; i < 5000; ++i) {
      chain += " + 1";
    }
    return chain;
  }();
  for (const std::string& statement :
       std::vector<std::string>{"",
                                "   ",
                                ";",
                                "SELECT",
                                "SELECT * FROM",
                                "SELECT * FROM tblEmployees WHERE",
                                "SELECT * FROM tblEmployees;;",
                                "SELECT * FROM tblEmployees; SELECT 1",
                                "SELECT * FROM tblEmployees -- x",
                                "SELECT * FROM tblEmployees, tblTableIDs",
                                "SELECT (SELECT 1)",
                                "SELECT load_extension('x')",
                                "SELECT 'open",
                                "SELECT [open",
                                "SELECT #13/13/2004#",
                                "SELECT 1.2.3",
                                "SELECT 5x",
                                "SELECT 1e999",
                                "SELECT @a",
                                "SELECT * FROM tblEmployees ORDER BY 99",
                                "PRAGMA key",
                                "DROP TABLE tblEmployees",
                                "ATTACH 'x' AS y",
                                "BEGIN",
                                "DELETE tblEmployees",
                                "SELECT " + deep,
                                "SELECT " + std::string(5000, '-') + "1",
                                "SELECT " + longChain,
                                "SELECT 1 WHERE 1 BETWEEN 2",
                                "SELECT 1 WHERE 1 IN ()",
                                "WHERE EmployeeId = 1"}) {
    EXPECT_EQ(Rows(statement), "80040e14") << statement.substr(0, 80);
  }
  EXPECT_EQ(Rows("DELETE FROM tblEmployees"), "80040e14");
  EXPECT_EQ(Run("SELECT EmployeeId FROM tblEmployees"), "80040e14");
  EXPECT_EQ(Rows("SELECT Count(*) FROM tblEmployees"), "3");
}

TEST_F(Select, TakesLongChainsAndLists) {
  std::string sum = "AccWages";
  std::string any = "EmployeeId = 0";
  std::string list = "0";
  for (int i = 1; i < 300; ++i) {
    sum += i % 2 == 0 ? " - AccWages" : " + AccWages";
    any += " OR EmployeeId = " + std::to_string(i);
    list += ", " + std::to_string(i);
  }
  EXPECT_EQ(Rows("SELECT " + sum + " - AccWages FROM tblEmployees WHERE EmployeeId = 2"), "0.1");
  EXPECT_EQ(Rows("SELECT Count(*) FROM tblEmployees WHERE " + any), "3");
  EXPECT_EQ(Rows("SELECT Count(*) FROM tblEmployees WHERE EmployeeId IN (" + list + ")"), "3");
}

TEST_F(Select, TellsUnknownNamesApart) {
  Check({
      {"SELECT Nix FROM tblEmployees", "80040e10"},
      {"SELECT EmployeeId FROM tblEmployees WHERE Nix = 1", "80040e10"},
      {"SELECT EmployeeId FROM tblEmployees ORDER BY Nix", "80040e10"},
      {"SELECT tblTableIDs.Id FROM tblEmployees", "80040e10"},
      {"SELECT AccWages Wages FROM tblEmployees WHERE Wages = 1", "80040e10"},
      {"SELECT Nix FROM tblNix", "80040e37"},
      {"SELECT name FROM sqlite_master", "80040e37"},
      {"SELECT EmployeeId FROM tblEmployees WHERE Birth = 'soon'", "80040e07"},
      {"SELECT EmployeeId FROM tblEmployees WHERE Visits = 'many'", "80040e07"},
  });
  ASSERT_EQ(connection_->Errors().size(), 1U);
  EXPECT_EQ(connection_->Errors()[0].description, "The text \"many\" is no number.");
}

TEST_F(Select, ForUpdateTakesPlainColumnsOnly) {
  const UpdatableRows rows = connection_->QueryForUpdate(
      "SELECT LastName, IndA FROM [tblemployees] WHERE EmployeeId > 1 ORDER BY EmployeeId");
  EXPECT_EQ(rows.table, "tblEmployees");
  EXPECT_EQ(rows.rowNumbers, (std::vector<std::int64_t>{2, 3}));
  connection_->UpdateRow(rows.table, rows.rowNumbers[1],
                         {{"lastname", std::string("Burke")}, {"IndA", false}, {"Rate", 5}});
  EXPECT_EQ(Rows("SELECT LastName, IndA, Rate FROM tblEmployees WHERE EmployeeId = 3"),
            "Burke|0|5");
  for (const char* statement :
       {"SELECT LastName AS Notes FROM tblEmployees", "SELECT Count(*) FROM tblEmployees",
        "SELECT DISTINCT IndA FROM tblEmployees", "SELECT Rate + 1 FROM tblEmployees"}) {
    EXPECT_EQ(Try([&] { return connection_->QueryForUpdate(statement).table; }), "80040e14");
  }
  const auto update = [&](std::int64_t row, const ColumnValues& values) {
    return Try([&] {
      connection_->UpdateRow("tblEmployees", row, values);
      return std::string();
    });
  };
  EXPECT_EQ(update(99, {{"Rate", 1}}), "80004005");
  EXPECT_EQ(update(1, {{"Nix", 1}}), "80040e10");
  EXPECT_EQ(update(1, {{"LastName", std::string("12345678901")}}), "80040e57");
  EXPECT_EQ(update(1, {}), "");
}

}  // namespace
}  // namespace lorvane

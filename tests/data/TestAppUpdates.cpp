#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "data/Files.h"
#include "data/Schema.h"
#include "data/cAppUpdates.h"
#include "support/FaultyVfs.h"
#include "support/OldCompany.h"
#include "support/RowsText.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

using Operation = bool (cAppUpdates::*)();

// One engine, and one file of each shape to copy: a key is derived once.
Engine& SharedEngine() {
  static const std::unique_ptr<Engine> kEngine = MakeFileEngine();
  return *kEngine;
}

std::string MadeFile(const std::string& shape) {
  static const TemporaryFolder kMade;
  const std::string folder = kMade.File(shape);
  if (std::filesystem::create_directory(folder)) {
    MakeOldCompany(folder, OldShapeNamed(shape));
  }
  return folder + "/Data.mdb";
}

/// The data file of an earlier release, and what brings it up to date.
class OldFile {
 public:
  explicit OldFile(const std::string& shape) : connection_({&SharedEngine(), "/", {}}) {
    std::filesystem::copy_file(MadeFile(shape), folder_.File("Data.mdb"));
    connection_.DataSource = folder_.File("Data.mdb");
    connection_.Password = kDataFilePassword;
    updates_.OnError = [this](const RuntimeError& error) { shown_ = error.Number(); };
  }

  [[nodiscard]] const std::string& Path() const { return connection_.DataSource; }
  [[nodiscard]] cAppUpdates& Updates() { return updates_; }
  bool Run(Operation operation) { return (updates_.*operation)(); }
  bool Verify(const std::string& table) { return updates_.VerifyTables(Path(), table); }
  [[nodiscard]] std::int32_t Shown() const { return shown_; }

  [[nodiscard]] std::unique_ptr<EngineConnection> Open() {
    return SharedEngine().Open(Path(), kDataFilePassword);
  }
  /// How many columns a table has, 0 when it isn't there.
  [[nodiscard]] std::size_t Count(const std::string& table) {
    const auto file = Open();
    return file->HasTable(table) ? file->ColumnsOf(table).size() : 0;
  }
  [[nodiscard]] std::string Rows(const std::string& statement) {
    return RowsText(*Open(), statement);
  }
  /// "Name type size;" of each column, sorted.
  [[nodiscard]] std::set<std::string> Columns(const std::string& table) {
    return Described(Open()->ColumnsOf(table));
  }
  static std::set<std::string> Described(const std::vector<Column>& columns) {
    std::set<std::string> described;
    for (const Column& column : columns) {
      described.insert(column.name + " " + std::to_string(static_cast<int>(column.type)) + " " +
                       std::to_string(column.size) + (column.isKey ? " key" : ""));
    }
    return described;
  }

 private:
  TemporaryFolder folder_;
  DataConnection connection_;
  cAppUpdates updates_{connection_};
  std::int32_t shown_ = 0;
};

TEST(AppUpdates, ATablesShapeDecides) {
  struct Case {
    const char* shape;
    const char* table;
    std::size_t before;
    bool result;
    std::size_t after;
  };
  constexpr Case cases[] = {{"industries-25", "tblIndustries", 25, true, 31},
                            {"today", "tblIndustries", 31, true, 31},
                            {"industries-27", "tblIndustries", 27, false, 27},
                            {"sub-remittance-7", "tblSubRemittance", 7, true, 9},
                            {"sub-remittance-8", "tblSubRemittance", 8, true, 9},
                            {"today", "tblSubRemittance", 9, true, 9},
                            {"emp-remittance-6", "tblEmpRemittance", 6, true, 10},
                            {"emp-remittance-7", "tblEmpRemittance", 7, true, 10},
                            {"emp-remittance-8", "tblEmpRemittance", 8, false, 8},
                            {"today", "tblempremittance", 10, true, 10},
                            {"emp-remittance-none", "tblEmpRemittance", 0, false, 0},
                            {"today", "tblAssets", 9, false, 9},
                            // What came before the step that is refused stays.
                            {"industries-25-other", "tblIndustries", 25, false, 27},
                            {"sub-remittance-7-other", "tblSubRemittance", 7, false, 8}};
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.shape) + ": " + row.table);
    OldFile file(row.shape);
    EXPECT_EQ(file.Count(row.table), row.before);
    const auto bytes = DiskFiles().Read(file.Path());
    EXPECT_EQ(file.Verify(row.table), row.result);
    EXPECT_EQ(file.Count(row.table), row.after);
    EXPECT_EQ(DiskFiles().Read(file.Path()) == bytes, row.before == row.after);
    if (row.result) {
      EXPECT_EQ(file.Columns(row.table), OldFile::Described(CompanyTable(row.table).columns));
      EXPECT_TRUE(file.Verify(row.table));
    }
  }
}

TEST(AppUpdates, RowsLiveThroughTheUpgrade) {
  OldFile file("first");
  for (const char* table : {"tblIndustries", "tblSubRemittance", "tblEmpRemittance"}) {
    EXPECT_TRUE(file.Verify(table)) << table;
  }
  for (const Operation operation : {&cAppUpdates::AddAssetTable, &cAppUpdates::AddPrincipalTable,
                                    &cAppUpdates::AddEmployeeFields, &cAppUpdates::AddSubConFields,
                                    &cAppUpdates::AddAssessableTable}) {
    EXPECT_TRUE(file.Run(operation));
  }
  for (const TableDefinition& table : CompanyTables()) {
    EXPECT_EQ(file.Columns(table.name), OldFile::Described(table.columns)) << table.name;
  }
  EXPECT_EQ(file.Rows("SELECT Id, IndA, IndB, DescA, RateA, SicA FROM tblIndustries"),
            "1|-1|0|Roofing|0.0235|");
  EXPECT_EQ(file.Rows("SELECT EmployeeId, LastName, AccWages, Street, Birth FROM tblEmployees"),
            "4|Archer|100.5||");
  EXPECT_EQ(file.Rows("SELECT SubContractId, Name, Expiry, Email FROM tblSubContract"),
            "6|Anchor||");
  EXPECT_EQ(file.Rows("SELECT EmployeeId, Amount, LastName FROM tblEmpRemittance"), "4|12.5|");
  EXPECT_EQ(file.Rows("SELECT AssessId, ProvId, Description, AssessLabour, Standard FROM "
                      "tblAssessable WHERE AssessId IN (1, 7, 13)"),
            "1|ALL|Clearance Letter Supplied|0|-1;7|NS|Trucking and Leased Equipment|25|0;"
            "13|NB|Hired Equipment|25|0");
  EXPECT_EQ(file.Rows("SELECT TableName, NextId FROM tblTableIDs WHERE Id > 5"),
            "tblAssets|0;tblPrincipals|0;tblAssessable|13");
  // A description of 100 characters fits, one more doesn't.
  const auto open = file.Open();
  open->Execute("UPDATE tblIndustries SET DescF = '" + std::string(100, 'x') + "'");
  EXPECT_THROW(open->Execute("UPDATE tblIndustries SET DescF = '" + std::string(101, 'x') + "'"),
               RuntimeError);
}

TEST(AppUpdates, EachOperationAddsItsColumns) {
  struct Case {
    const char* shape;
    Operation operation;
    const char* table;
    const char* added;
  };
  const Case cases[] = {
      {"industries-25", &cAppUpdates::AddSic2DB, "tblIndustries", "SicASicBSicCSicDSicESicF"},
      {"sub-remittance-8", &cAppUpdates::AddSubName, "tblSubRemittance", "Name"},
      {"sub-remittance-7", &cAppUpdates::AddIndustry2Sub, "tblSubRemittance", "Industry"},
      {"emp-remittance-7", &cAppUpdates::AddEmpLFNames, "tblEmpRemittance",
       "LastNameFirstNameInitial"},
      {"emp-remittance-6", &cAppUpdates::AddIndustry2Emp, "tblEmpRemittance", "Industry"},
      {"employees-without-street", &cAppUpdates::AddEmployeeFields, "tblEmployees",
       "StreetCityProvincePostalCodeHPhoneCPhoneWPhoneMailingOccupationHealthGenderBirth"},
      {"sub-contractors-without-expiry", &cAppUpdates::AddSubConFields, "tblSubContract",
       "ExpiryPhoneFaxEmail"}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.shape);
    OldFile file(row.shape);
    const std::size_t before = file.Count(row.table);
    EXPECT_TRUE(file.Run(row.operation));
    const std::vector<Column> columns = file.Open()->ColumnsOf(row.table);
    std::string added;
    for (std::size_t place = before; place < columns.size(); ++place) {
      added += columns[place].name;
    }
    EXPECT_EQ(added, row.added);
    // They are there now.
    EXPECT_FALSE(file.Run(row.operation));
    EXPECT_EQ(file.Count(row.table), columns.size());
  }
}

TEST(AppUpdates, AKeyCounterStandsForItsTable) {
  struct Case {
    const char* shape;
    bool found;
    std::int32_t shown;
    bool added;
    bool foundThen;
    std::size_t columns;
  };
  constexpr Case cases[] = {
      {"today", true, 0, false, false, 9},
      {"no-assets-no-principals", false, 0, true, true, 9},
      {"counters-without-tables", true, 0, true, false, 9},
      {"tables-without-counters", false, 0, false, true, 9},
      {"counters-without-next", false, 0, false, false, 9},
      {"no-counters", false, error_number::kEngineUnknownTable, false, false, 9}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.shape);
    OldFile file(row.shape);
    EXPECT_EQ(file.Updates().CheckForAssets(), row.found);
    EXPECT_EQ(file.Shown(), row.shown);
    EXPECT_EQ(file.Run(&cAppUpdates::AddAssetTable), row.added);
    EXPECT_EQ(file.Updates().CheckForAssets(), row.foundThen);
    EXPECT_EQ(file.Count("tblAssets"), row.columns);
    EXPECT_EQ(file.Updates().CheckForPrincipals(), row.found);
  }
}

TEST(AppUpdates, AFileThatCantBeOpenedIsNoCurrentOne) {
  OldFile file("today");
  EXPECT_FALSE(file.Updates().VerifyTables(file.Path() + "x", "tblIndustries"));
  std::filesystem::remove(file.Path());
  EXPECT_FALSE(file.Run(&cAppUpdates::AddSubName));
  EXPECT_FALSE(file.Updates().CheckForAssets());
  EXPECT_EQ(file.Shown(), error_number::kEngineFailure);
}

// The disk is full after any number of bytes: the table has its old shape or its new one, and the
// next opening brings it to the new one.
TEST(AppUpdates, ADiskThatFillsUpLeavesAKnownShape) {
  struct Case {
    const char* shape;
    const char* table;
    Operation operation;
    std::size_t before;
    std::size_t after;
  };
  const Case cases[] = {
      {"industries-25", "tblIndustries", nullptr, 25, 31},
      {"sub-remittance-7", "tblSubRemittance", nullptr, 7, 9},
      {"emp-remittance-6", "tblEmpRemittance", nullptr, 6, 10},
      {"employees-without-street", "tblEmployees", &cAppUpdates::AddEmployeeFields, 32, 44},
      {"sub-contractors-without-expiry", "tblSubContract", &cAppUpdates::AddSubConFields, 35, 39},
      {"no-contract-types", "tblAssessable", &cAppUpdates::AddAssessableTable, 0, 5},
      {"no-assets-no-principals", "tblAssets", &cAppUpdates::AddAssetTable, 0, 9}};
  constexpr std::int64_t kStep = 1000;
  for (const Case& row : cases) {
    const auto upgrade = [&](OldFile& file) {
      return row.operation == nullptr ? file.Verify(row.table) : file.Run(row.operation);
    };
    int failures = 0;
    bool done = false;
    for (std::int64_t bytes = 0; !done; bytes += kStep + bytes / 4) {
      SCOPED_TRACE(std::string(row.shape) + " and " + std::to_string(bytes) + " bytes");
      FaultyVfs disk;
      OldFile file(row.shape);
      disk.FillAfter(bytes);
      done = upgrade(file);
      disk.Heal();
      failures += done ? 0 : 1;
      EXPECT_EQ(file.Count(row.table), done ? row.after : row.before);
      if (!done) {
        EXPECT_TRUE(upgrade(file));
        EXPECT_EQ(file.Columns(row.table), OldFile::Described(CompanyTable(row.table).columns));
      }
      // A counter comes with its table or not at all.
      EXPECT_LE(file.Rows("SELECT Count(*) AS N FROM tblTableIDs WHERE TableName = '" +
                          std::string(row.table) + "'"),
                "1");
      ASSERT_LT(failures, 500);
    }
    EXPECT_GT(failures, 1) << row.shape;
  }
}

}  // namespace
}  // namespace lorvane

#include "data/cAppUpdates.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "basic/IndustrySlot.h"
#include "basic/Text.h"
#include "data/ContractTypes.h"
#include "data/Recordset.h"
#include "data/Schema.h"

namespace lorvane {
namespace {

constexpr const char* kIndustries = "tblIndustries";
constexpr const char* kSubRemittance = "tblSubRemittance";
constexpr const char* kEmpRemittance = "tblEmpRemittance";
constexpr const char* kPrincipals = "tblPrincipals";
constexpr const char* kAssets = "tblAssets";
constexpr const char* kContractTypes = "tblAssessable";

// Adds columns in the order given, each as a table made today has it.
void AddColumns(EngineConnection& connection, const char* table,
                std::initializer_list<std::string> names) {
  for (const std::string& name : names) {
    connection.AddColumn(table, ColumnNamed(CompanyTable(table), name));
  }
}

void AddKeyCounter(EngineConnection& connection, const char* table, std::int32_t lastKey) {
  Recordset counters;
  counters.OpenForUpdate(connection, "SELECT * FROM tblTableIDs");
  counters.AddNew();
  counters.SetField("TableName", std::string(table));
  counters.SetField("NextId", lastKey);
  counters.Update();
}

void AddTable(EngineConnection& connection, const char* table) {
  connection.CreateTable(table, CompanyTable(table).columns);
}

// The counter comes first: a file that has the table already gets its counter and keeps the table.
void AddCountedTable(EngineConnection& connection, const char* table) {
  AddKeyCounter(connection, table, 0);
  AddTable(connection, table);
}

void AddSicColumns(EngineConnection& connection) {
  for (const IndustrySlot slot : kAllSlots) {
    AddColumns(connection, kIndustries, {SlotName("Sic", slot)});
  }
}

void WidenDescriptions(EngineConnection& connection, const std::string& table) {
  for (const IndustrySlot slot : kAllSlots) {
    connection.Execute("ALTER TABLE " + table + " ALTER COLUMN " + SlotName("Desc", slot) +
                       " TEXT(100)");
  }
}

void UpgradeIndustries(EngineConnection& connection) {
  AddSicColumns(connection);
  WidenDescriptions(connection, kIndustries);
}

void AddSubIndustry(EngineConnection& connection) {
  AddColumns(connection, kSubRemittance, {"Industry"});
}

void AddSubNames(EngineConnection& connection) { AddColumns(connection, kSubRemittance, {"Name"}); }

void AddEmpIndustry(EngineConnection& connection) {
  AddColumns(connection, kEmpRemittance, {"Industry"});
}

void AddEmpNames(EngineConnection& connection) {
  AddColumns(connection, kEmpRemittance, {"LastName", "FirstName", "Initial"});
}

void UpgradeSubRemittance(EngineConnection& connection) {
  AddSubIndustry(connection);
  AddSubNames(connection);
}

void UpgradeEmpRemittance(EngineConnection& connection) {
  AddEmpIndustry(connection);
  AddEmpNames(connection);
}

struct KnownShape {
  const char* table;
  std::size_t columns;
  /// Null for the shape of today.
  void (*upgrade)(EngineConnection&);
};

constexpr std::array kKnownShapes{
    KnownShape{kIndustries, 25, UpgradeIndustries},
    KnownShape{kIndustries, 31, nullptr},
    KnownShape{kSubRemittance, 7, UpgradeSubRemittance},
    KnownShape{kSubRemittance, 8, AddSubNames},
    KnownShape{kSubRemittance, 9, nullptr},
    KnownShape{kEmpRemittance, 6, UpgradeEmpRemittance},
    KnownShape{kEmpRemittance, 7, AddEmpNames},
    KnownShape{kEmpRemittance, 10, nullptr},
};

// All in one commit, since a shape halfway is none that the next opening knows. A step that is
// refused ends the commit as well: what came before it stays.
void InOneCommit(const DataConnection& own, const std::function<void(EngineConnection&)>& work) {
  const auto batch = own.MakeBatch();
  work(own.Connection());
  Commit(batch);
}

}  // namespace

bool cAppUpdates::VerifyTables(const std::string& dataSource, const std::string& tableName) {
  try {
    const auto own = connection_->MakeAnother();
    own->SetProviderConst(DataConnection::kJet);
    own->DataSource = dataSource;
    own->Password = kDataFilePassword;
    own->OpenOrRaise();
    const std::size_t count = own->Connection().Query("SELECT * FROM " + tableName).columns.size();
    const auto* const shape =
        std::find_if(kKnownShapes.begin(), kKnownShapes.end(), [&](const KnownShape& known) {
          return known.columns == count && EqualsNoCase(known.table, tableName);
        });
    if (shape == kKnownShapes.end()) {
      return false;
    }
    if (shape->upgrade != nullptr) {
      InOneCommit(*own, shape->upgrade);
    }
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

bool cAppUpdates::Run(const Work& work) const {
  try {
    const auto own = connection_->MakeTwin();
    own->OpenOrRaise();
    InOneCommit(*own, work);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

bool cAppUpdates::AddSic2DB() { return Run(AddSicColumns); }

bool cAppUpdates::ModifyField(const std::string& tableName) {
  return Run([&](EngineConnection& connection) { WidenDescriptions(connection, tableName); });
}

bool cAppUpdates::AddSubName() { return Run(AddSubNames); }

bool cAppUpdates::AddIndustry2Sub() { return Run(AddSubIndustry); }

bool cAppUpdates::AddEmpLFNames() { return Run(AddEmpNames); }

bool cAppUpdates::AddIndustry2Emp() { return Run(AddEmpIndustry); }

bool cAppUpdates::HasKeyCounter(const char* table) const {
  try {
    const auto own = connection_->MakeTwin();
    own->OpenOrRaise();
    Recordset counters;
    counters.Open(own->Connection(),
                  "SELECT Id, TableName, NextId FROM tblTableIDs WHERE TableName = '" +
                      std::string(table) + "'");
    return counters.RecordCount() == 1;
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kEngineUnknownColumn && OnError) {
      OnError(error);
    }
    return false;
  }
}

bool cAppUpdates::CheckForPrincipals() { return HasKeyCounter(kPrincipals); }

bool cAppUpdates::CheckForAssets() { return HasKeyCounter(kAssets); }

bool cAppUpdates::AddPrincipalTable() {
  return Run([](EngineConnection& connection) { AddCountedTable(connection, kPrincipals); });
}

bool cAppUpdates::AddAssetTable() {
  return Run([](EngineConnection& connection) { AddCountedTable(connection, kAssets); });
}

bool cAppUpdates::AddEmployeeFields() {
  return Run([](EngineConnection& connection) {
    AddColumns(connection, "tblEmployees",
               {"Street", "City", "Province", "PostalCode", "HPhone", "CPhone", "WPhone", "Mailing",
                "Occupation", "Health", "Gender", "Birth"});
  });
}

bool cAppUpdates::AddSubConFields() {
  return Run([](EngineConnection& connection) {
    AddColumns(connection, "tblSubContract", {"Expiry", "Phone", "Fax", "Email"});
  });
}

bool cAppUpdates::AddAssessableTable() {
  return Run([](EngineConnection& connection) {
    AddTable(connection, kContractTypes);
    AddKeyCounter(connection, kContractTypes, AddStandardContractTypes(connection));
  });
}

}  // namespace lorvane

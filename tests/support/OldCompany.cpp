#include "support/OldCompany.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <utility>

#include "basic/IndustrySlot.h"
#include "data/ContractTypes.h"
#include "data/DataConnection.h"
#include "data/Files.h"
#include "data/Schema.h"

namespace lorvane {
namespace {

using Strings = std::vector<std::string>;

constexpr const char* kConfig =
    "[DataBase]\r\nPath=old\r\nFile=Data.mdb\r\n[Environment]\r\nName=Old Harbour Roofing\r\n"
    "[Assessment]\r\nLastEntry=11/20/2025\r\nDefault=0\r\nIndustry=1\r\nCurrentYear=2025\r\n"
    "[Remittance]\r\nPreview=-1\r\nCopies=1\r\nExport=-1\r\nNav=-1\r\nProgress=-1\r\nRefresh=-1\r\n"
    "Search=-1\r\nZoom=-1\r\nFrom=1/1/2025\r\nTo=12/31/2025\r\n";

Strings Columns(const std::string& table, std::initializer_list<const char*> names) {
  Strings columns;
  for (const char* name : names) {
    columns.push_back(table + "." + name);
  }
  return columns;
}

Strings Together(std::initializer_list<Strings> lists) {
  Strings all;
  for (const Strings& list : lists) {
    all.insert(all.end(), list.begin(), list.end());
  }
  return all;
}

std::vector<OldShape> MakeShapes() {
  const Strings codes = Columns("tblIndustries", {"SicA", "SicB", "SicC", "SicD", "SicE", "SicF"});
  const Strings sub7 = Columns("tblSubRemittance", {"Industry", "Name"});
  const Strings emp6 =
      Columns("tblEmpRemittance", {"Industry", "LastName", "FirstName", "Initial"});
  const Strings person =
      Columns("tblEmployees", {"Street", "City", "Province", "PostalCode", "HPhone", "CPhone",
                               "WPhone", "Mailing", "Occupation", "Health", "Gender", "Birth"});
  const Strings contact = Columns("tblSubContract", {"Expiry", "Phone", "Fax", "Email"});
  const Strings tables{"tblAssets", "tblAssets#", "tblPrincipals", "tblPrincipals#"};
  const Strings contracts{"tblAssessable", "tblAssessable#"};
  return {
      {"today", {}},
      {"industries-25", codes, 50},
      {"industries-27", Columns("tblIndustries", {"SicC", "SicD", "SicE", "SicF"})},
      {"industries-25-other",
       Columns("tblIndustries", {"SicA", "SicB", "SicD", "SicE", "SicF", "IdentifierF"})},
      {"sub-remittance-7", sub7},
      {"sub-remittance-8", Columns("tblSubRemittance", {"Name"})},
      {"sub-remittance-7-other", Columns("tblSubRemittance", {"Industry", "Rate"})},
      {"emp-remittance-6", emp6},
      {"emp-remittance-7", Columns("tblEmpRemittance", {"LastName", "FirstName", "Initial"})},
      {"emp-remittance-8", Columns("tblEmpRemittance", {"FirstName", "Initial"})},
      {"emp-remittance-none", {"tblEmpRemittance"}},
      {"employees-without-street", person},
      {"employees-without-city", Columns("tblEmployees", {"City"})},
      {"sub-contractors-without-expiry", contact},
      {"no-contract-types", contracts},
      {"no-assets-no-principals", tables},
      {"counters-without-tables", {"tblAssets", "tblPrincipals"}},
      {"tables-without-counters", {"tblAssets#", "tblPrincipals#"}},
      {"counters-without-next", {"tblTableIDs.NextId"}},
      {"no-counters", {"tblTableIDs"}},
      {"first", Together({codes, sub7, emp6, person, contact, tables, contracts}), 50},
  };
}

class OldFile {
 public:
  OldFile(EngineConnection& connection, const OldShape& shape)
      : connection_(connection), shape_(shape) {}

  void MakeTables() {
    for (const TableDefinition& table : CompanyTables()) {
      if (Has(table.name)) {
        connection_.CreateTable(table.name, ColumnsOf(table));
      }
    }
  }
  void Fill() {
    Insert("tblIndustries", {{"IndA", true}, {"DescA", "Roofing"}, {"RateA", 0.0235}});
    Insert("tblEmployees",
           {{"EmployeeId", 4}, {"LastName", "Archer"}, {"AccWages", 100.5}, {"IndA", true}});
    Insert("tblSubContract", {{"SubContractId", 6},
                              {"Name", "Anchor"},
                              {"ContractType", "Not Assigned"},
                              {"IndA", true}});
    Insert("tblEmpRemittance", {{"EmployeeId", 4}, {"Amount", 12.5}});
    Insert("tblSubRemittance", {{"SubContractId", 6}, {"Amount", 7.25}});
    if (Has("tblAssessable")) {
      AddStandardContractTypes(connection_);
    }
    const std::initializer_list<std::pair<const char*, int>> counters{
        {"tblCompany", 0},    {"tblEmployees", 4},  {"tblSubContract", 6}, {"tblEmpHistory", 0},
        {"tblSubHistory", 0}, {"tblPrincipals", 0}, {"tblAssets", 0},      {"tblAssessable", 13}};
    for (const auto& [table, last] : counters) {
      if (Has(table + std::string("#"))) {
        Insert("tblTableIDs", {{"TableName", table}, {"NextId", last}});
      }
    }
  }

 private:
  [[nodiscard]] bool Has(const std::string& thing) const {
    return std::find(shape_.missing.begin(), shape_.missing.end(), thing) == shape_.missing.end();
  }
  [[nodiscard]] std::vector<Column> ColumnsOf(const TableDefinition& table) const {
    std::vector<Column> columns = table.columns;
    std::erase_if(columns,
                  [&](const Column& column) { return !Has(table.name + "." + column.name); });
    for (Column& column : columns) {
      if (table.name == "tblIndustries" && column.name.starts_with("Desc")) {
        column.size = shape_.descriptionSize;
      }
    }
    return columns;
  }
  void Insert(const std::string& table, ColumnValues values) {
    std::erase_if(values, [&](const auto& value) { return !Has(table + "." + value.first); });
    if (Has(table)) {
      connection_.InsertRow(table, values);
    }
  }

  EngineConnection& connection_;
  const OldShape& shape_;
};

}  // namespace

const std::vector<OldShape>& OldShapes() {
  static const std::vector<OldShape> kShapes = MakeShapes();
  return kShapes;
}

const OldShape& OldShapeNamed(const std::string& name) {
  for (const OldShape& shape : OldShapes()) {
    if (shape.name == name) {
      return shape;
    }
  }
  throw std::out_of_range("there is no shape " + name);
}

void MakeOldCompany(const std::string& folder, const OldShape& shape) {
  const auto connection = MakeFileEngine()->Create(folder + "/Data.mdb", kDataFilePassword);
  WriteBatch batch(*connection);
  OldFile file(*connection, shape);
  file.MakeTables();
  file.Fill();
  batch.Commit();
  DiskFiles().Write(folder + "/LorvaneConfig.ini", kConfig);
}

}  // namespace lorvane

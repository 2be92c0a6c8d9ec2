#include "data/Schema.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "basic/IndustrySlot.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

Column Key(std::string name) { return {std::move(name), ColumnType::kLong, 0, true}; }
Column Long(std::string name) { return {std::move(name), ColumnType::kLong}; }
Column Text(std::string name, int size) { return {std::move(name), ColumnType::kText, size}; }
Column YesNo(std::string name) { return {std::move(name), ColumnType::kYesNo}; }
Column Amount(std::string name) { return {std::move(name), ColumnType::kCurrency}; }
Column Number(std::string name) { return {std::move(name), ColumnType::kDouble}; }
Column Date(std::string name) { return {std::move(name), ColumnType::kDate}; }

class TableBuilder {
 public:
  explicit TableBuilder(std::string name) { table_.name = std::move(name); }

  TableBuilder& Add(std::initializer_list<Column> columns) {
    table_.columns.insert(table_.columns.end(), columns);
    return *this;
  }
  // The six columns of a stem, one a slot.
  TableBuilder& AddSlots(const Column& stem) {
    for (const IndustrySlot slot : kAllSlots) {
      table_.columns.push_back({SlotName(stem.name, slot), stem.type, stem.size});
    }
    return *this;
  }
  [[nodiscard]] TableDefinition Done() const { return table_; }

 private:
  TableDefinition table_;
};

TableDefinition Company() {
  return TableBuilder("tblCompany")
      .Add({Key("CompanyId"), Text("BusNum", 9), Text("PrgIdentifier", 2), Text("LegalName", 50),
            Text("OpAs", 50), Text("Address", 50), Text("City", 30), Text("Province", 3),
            Text("PostalCode", 7), Text("AreaPhone", 3), Text("Phone", 8), Text("AreaFax", 3),
            Text("Fax", 8), Text("Email", 75)})
      .Done();
}

TableDefinition Industries() {
  return TableBuilder("tblIndustries")
      .Add({Key("Id")})
      .AddSlots(YesNo("Ind"))
      .AddSlots(Text("Desc", 100))
      .AddSlots(Text("Identifier", 4))
      .AddSlots(Number("Rate"))
      .AddSlots(Text("Sic", 6))
      .Done();
}

TableDefinition Employees() {
  return TableBuilder("tblEmployees")
      .Add({Key("EmployeeId"),    Text("LastName", 75),    Text("FirstName", 75),
            Text("Initial", 1),   Text("Sin", 15),         Text("Street", 75),
            Text("City", 50),     Text("Province", 20),    Text("PostalCode", 10),
            Text("HPhone", 18),   Text("CPhone", 18),      Text("WPhone", 18),
            Text("Mailing", 150), Text("Gender", 6),       Date("Birth"),
            Text("Health", 15),   Text("Occupation", 100), Amount("AccWages"),
            Amount("MaxContrib"), YesNo("Inactive")})
      .AddSlots(YesNo("Ind"))
      .AddSlots(Date("PayDate"))
      .AddSlots(Amount("Amount"))
      .AddSlots(Amount("AssessAmt"))
      .Done();
}

// A postal code is cut by no import, so its column takes whatever a spreadsheet holds.
TableDefinition SubContractors() {
  return TableBuilder("tblSubContract")
      .Add({Key("SubContractId"), Text("ContractType", 50), Amount("PercentLabour"),
            Text("Name", 75), Text("BusNum", 9), Text("Address", 50), Text("City", 30),
            Text("Province", 3), Text("PostCode", 255), Text("Description", 150), Date("Expiry"),
            Text("Phone", 14), Text("Fax", 14), Text("Email", 75)})
      .AddSlots(YesNo("Ind"))
      .AddSlots(Date("PayDate"))
      .AddSlots(Amount("Amount"))
      .AddSlots(Amount("AssessAmt"))
      .Add({Amount("RemittPay")})
      .Done();
}

// The statements of the history name AccWages; nothing ever fills it.
TableDefinition EmployeeHistory() {
  return TableBuilder("tblEmpHistory")
      .Add({Key("TransactionId"), Long("EmployeeId"), Date("DtCreate")})
      .AddSlots(Date("PayDate"))
      .AddSlots(Amount("Amount"))
      .AddSlots(Amount("AssessAmt"))
      .Add({Amount("AssessRt")})
      .AddSlots(YesNo("Ind"))
      .Add({Amount("Remittance"), Amount("AccWages")})
      .Done();
}

TableDefinition SubContractorHistory() {
  return TableBuilder("tblSubHistory")
      .Add({Key("TransactionId"), Long("SubContractId"), Text("Name", 75)})
      .AddSlots(Date("PayDate"))
      .AddSlots(Amount("Amount"))
      .Add({Number("PercentLabour")})
      .AddSlots(Amount("AssessAmt"))
      .Add({Number("Rate"), Amount("Remittance")})
      .AddSlots(YesNo("Ind"))
      .Add({Date("DtCreate")})
      .Done();
}

TableDefinition EmployeeRemittance() {
  return TableBuilder("tblEmpRemittance")
      .Add({Key("Id"), Long("EmployeeId"), Date("Date"), Amount("Amount"), Amount("AssessAmt"),
            Amount("AssessRt"), Text("Industry", 1), Text("LastName", 75), Text("FirstName", 50),
            Text("Initial", 1)})
      .Done();
}

TableDefinition SubContractorRemittance() {
  return TableBuilder("tblSubRemittance")
      .Add({Key("Id"), Long("SubContractId"), Date("PayDate"), Amount("Amount"),
            Number("PercentLabour"), Amount("AssessAmt"), Number("Rate"), Text("Industry", 1),
            Text("Name", 75)})
      .Done();
}

TableDefinition Principals() {
  return TableBuilder("tblPrincipals")
      .Add({Key("PrincipalId"), Text("LastName", 50), Text("FirstName", 30), Text("Title", 30),
            Text("Address", 75), Text("City", 30), Text("Province", 3), Text("PostalCode", 7),
            Text("Sin", 14), Date("BirthDate"), Text("WorkPhone", 14), Text("CellPhone", 14),
            Text("HomePhone", 14), Text("FaxPhone", 14)})
      .Done();
}

TableDefinition Assets() {
  return TableBuilder("tblAssets")
      .Add({Key("AssetId"), YesNo("IsVehicle"), Text("Description", 50), Text("SerialNo", 20),
            Text("LicenseNo", 20), Text("VehicleMake", 30), Text("VehicleModel", 30),
            Long("VehicleYear"), Text("VehicleColour", 15)})
      .Done();
}

TableDefinition ContractTypes() {
  return TableBuilder("tblAssessable")
      .Add({Key("AssessId"), Text("ProvId", 3), Text("Description", 50), Number("AssessLabour"),
            YesNo("Standard")})
      .Done();
}

TableDefinition KeyCounters() {
  return TableBuilder("tblTableIDs").Add({Key("Id"), Text("TableName", 50), Long("NextId")}).Done();
}

template <typename Item>
const Item& Named(const std::vector<Item>& items, std::string_view name) {
  const auto found = std::find_if(items.begin(), items.end(),
                                  [&](const Item& item) { return EqualsNoCase(item.name, name); });
  if (found == items.end()) {
    throw RuntimeError(error_number::kItemNotFound);
  }
  return *found;
}

}  // namespace

const std::vector<TableDefinition>& CompanyTables() {
  static const std::vector<TableDefinition> tables{Company(),
                                                   Industries(),
                                                   Employees(),
                                                   SubContractors(),
                                                   EmployeeHistory(),
                                                   SubContractorHistory(),
                                                   EmployeeRemittance(),
                                                   SubContractorRemittance(),
                                                   Principals(),
                                                   Assets(),
                                                   ContractTypes(),
                                                   KeyCounters()};
  return tables;
}

const TableDefinition& CompanyTable(std::string_view name) { return Named(CompanyTables(), name); }

const Column& ColumnNamed(const TableDefinition& table, std::string_view name) {
  return Named(table.columns, name);
}

TableDefinition RateTable(int year) {
  return TableBuilder("tbl" + std::to_string(year))
      .Add({Key("ID"), Text("SIC", 6), Text("Description", 100), Number("Rate")})
      .Done();
}

void CreateCompanySchema(EngineConnection& connection) {
  for (const TableDefinition& table : CompanyTables()) {
    connection.CreateTable(table.name, table.columns);
  }
}

}  // namespace lorvane

#include "import/ImportTarget.h"

namespace lorvane {
namespace {

ImportColumn Cut(std::string caption, std::string column, std::size_t length) {
  return {std::move(caption), std::move(column), CellTreatment::kCut, length};
}

}  // namespace

std::string ImportColumn::Heading() const { return caption.substr(caption.find(':') + 2); }

const ImportTarget& EmployeeTarget() {
  static const ImportTarget target{
      "tblEmployees",
      "employees",
      "EmployeeId, SIN, LastName, FirstName, Initial, IndA, MaxContrib",
      {Cut("Column 1: SIN", "SIN", 12), Cut("Column 2: Last name", "LastName", 50),
       Cut("Column 3: First name", "FirstName", 75), Cut("Column 4: Middle initial", "Initial", 1)},
      {{"IndA", 1}, {"MaxContrib", std::string("40500.00")}}};
  return target;
}

const ImportTarget& SubContractorTarget() {
  static const ImportTarget target{
      "tblSubContract",
      "sub-contractors",
      "SubContractId, BusNum, Name, Address, City, Province, PostCode, ContractType, "
      "PercentLabour, Description, IndA",
      {Cut("Column 1: Business No.", "BusNum", 9),
       Cut("Column 2: Name", "Name", 75),
       Cut("Column 3: Address", "Address", 50),
       Cut("Column 4: City", "City", 30),
       {"Column 5: Province (i.e. NS)", "Province", CellTreatment::kProvince},
       {"Column 6: Postal Code", "PostCode", CellTreatment::kCapitals}},
      {{"ContractType", std::string("Not Assigned")},
       {"PercentLabour", 0},
       {"Description", std::string("Not Assigned")},
       {"IndA", 1}}};
  return target;
}

}  // namespace lorvane

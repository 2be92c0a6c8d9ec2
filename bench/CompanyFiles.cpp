#include "CompanyFiles.h"

#include <fmt/format.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "OpenCompany.h"
#include "company/modNewCompany.h"

namespace lorvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDataFile = "/Data.mdb";

void AddEmployees(EngineConnection& connection, int employees) {
  constexpr std::array lastNames{"Boutilier", "LeBlanc", "Comeau", "MacDonald", "O''Brien"};
  constexpr std::array firstNames{"Réjean", "Brent", "Shauna", "Wendell"};
  for (int id = 1; id <= employees; ++id) {
    const auto number = static_cast<std::size_t>(id);
    connection.Execute(fmt::format(
        "INSERT INTO tblEmployees (EmployeeId, LastName, FirstName, Initial, Sin, Street, City, "
        "Province, PostalCode, HPhone, Birth, Gender, Occupation, AccWages, MaxContrib, Inactive, "
        "IndA, AmountA, AssessAmtA) VALUES ({0}, '{1}{0}', '{2}', 'M', '046-454-286', '{0} Main "
        "Street', 'Halifax', 'Nova Scotia', 'B3H 1A1', '(902) 555-0100', '{3}/12/1980', 'Female', "
        "'Roofer', {4}.25, 60000, 0, 1, {5}.75, {5}.75)",
        id, lastNames.at(number % lastNames.size()), firstNames.at(number % firstNames.size()),
        1 + id % 12, 10000 + id % 900, 1500 + id % 700));
  }
  connection.Execute(fmt::format(
      "UPDATE tblTableIDs SET NextId = {} WHERE TableName = 'tblEmployees'", employees));
}

void AddHistory(EngineConnection& connection, int rows, int employees) {
  for (int key = 1; key <= rows; ++key) {
    connection.Execute(
        fmt::format("INSERT INTO tblEmpHistory (TransactionId, EmployeeId, DtCreate, AssessRt, "
                    "Remittance, PayDateA, AmountA, AssessAmtA, IndA) VALUES ({}, {}, '1/5/2026', "
                    "6.27, {}.25, '{}/{}/2026', {}.5, {}.5, 1)",
                    key, 1 + key % employees, 60 + key % 40, 1 + key % 12, 1 + key % 28,
                    900 + key % 800, 900 + key % 800));
  }
  connection.Execute(
      fmt::format("UPDATE tblTableIDs SET NextId = {} WHERE TableName = 'tblEmpHistory'", rows));
}

}  // namespace

CompanyFiles::CompanyFiles(int employees, int historyRows)
    : folder_((fs::temp_directory_path() / "lorvane-bench.XXXXXX").string()) {
  if (mkdtemp(folder_.data()) == nullptr) {
    throw std::system_error(errno, std::generic_category(), folder_);
  }
  fs::create_directory(Made());
  OpenCompany company = OpenCompany::New(Made() + kDataFile);
  company.GetSession().Ini().KeySave("2026", "Assessment", "CurrentYear");
  EngineConnection& connection = company.GetSession().gDataConn->Connection();
  const auto batch = company.GetSession().gDataConn->MakeBatch();
  connection.Execute(
      "UPDATE tblIndustries SET IndA = 1, DescA = 'Roofing', IdentifierA = '0001', RateA = "
      "0.0627, SicA = '423500'");
  AddEmployees(connection, employees);
  AddHistory(connection, historyRows, employees);
  Commit(batch);
}

CompanyFiles::~CompanyFiles() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string CompanyFiles::FreshCopy() const {
  const std::string copy = folder_ + "/copy";
  fs::remove_all(copy);
  fs::copy(Made(), copy);
  return copy + kDataFile;
}

}  // namespace lorvane

#include "data/ContractTypes.h"

#include <array>
#include <string>

#include "data/modDataAccess.h"

namespace lorvane {
namespace {

struct ContractType {
  const char* provId;
  const char* description;
  /// Per cent of a payment.
  int assessLabour;
  bool standard;
};

constexpr std::array kContractTypes{
    ContractType{"ALL", "Clearance Letter Supplied", 0, true},
    ContractType{"ALL", "Exempt Industry", 0, true},
    ContractType{"ALL", "Not Assigned", 0, true},
    ContractType{"NS", "Labour Only", 100, false},
    ContractType{"NS", "Labour and Materials", 50, false},
    ContractType{"NS", "Courier Service", 50, false},
    ContractType{"NS", "Trucking and Leased Equipment", 25, false},
    ContractType{"NS", "Logging (Chain Saw)", 75, false},
    ContractType{"NB", "Labour", 100, false},
    ContractType{"NB", "Janitorial Service", 80, false},
    ContractType{"NB", "Labour and Materials", 50, false},
    ContractType{"NB", "Courier/Mail Service", 40, false},
    ContractType{"NB", "Hired Equipment", 25, false},
};

}  // namespace

std::int32_t AddStandardContractTypes(EngineConnection& connection) {
  std::int32_t count = 0;
  for (const ContractType& type : kContractTypes) {
    connection.Execute(
        "INSERT INTO tblAssessable (ProvId, Description, AssessLabour, Standard) VALUES (" +
        QuoteText(type.provId) + ", " + QuoteText(type.description) + ", " +
        std::to_string(type.assessLabour) + ", " + (type.standard ? "-1" : "0") + ")");
    ++count;
  }
  return count;
}

}  // namespace lorvane

#include <array>
#include <iostream>
#include <nlohmann/json.hpp>

#include "basic/Number.h"
#include "cli/Commands.h"
#include "company/cCompany.h"
#include "company/cIndustry.h"

namespace lorvane {
namespace {

using Json = nlohmann::ordered_json;

struct Counted {
  const char* name;
  const char* table;
};

constexpr std::array kCounted{
    Counted{"employees", "tblEmployees"},
    Counted{"subContractors", "tblSubContract"},
    Counted{"employeePayments", "tblEmpHistory"},
    Counted{"subContractorPayments", "tblSubHistory"},
};

Json IndustriesOf(CommandProgram& program) {
  Json list = Json::array();
  cIndustry industries;
  industries.SetDataConnection(program.GetSession().gDataConn.get());
  if (!industries.OpenRecordset()) {
    return list;
  }
  for (const IndustrySlot slot : kAllSlots) {
    if (industries.Ind[slot]) {
      list.push_back({{"slot", std::string(1, LetterOf(slot))},
                      {"description", industries.Desc[slot]},
                      {"identifier", industries.Identifier[slot]},
                      {"rate", industries.Rate[slot]},
                      {"sic", industries.Sic[slot]}});
    }
  }
  return list;
}

Json Describe(CommandProgram& program) {
  cINI ini = program.GetSession().Ini();
  cCompany company;
  company.SetDataConnection(program.GetSession().gDataConn.get());
  company.OpenRecordset();
  Json result;
  result["file"] = program.File();
  result["name"] = ini.KeyGet("Environment", "Name", "");
  result["legalName"] = company.LegalName;
  result["businessNumber"] = company.BusNum + company.PrgIdentifier;
  result["currentYear"] = ini.KeyGet("Assessment", "CurrentYear", "");
  result["archive"] = ini.KeyGet("DataBase", "YE", "") == "1";
  result["industries"] = IndustriesOf(program);
  for (const Counted& counted : kCounted) {
    const Value count =
        program.QueryValue(std::string("SELECT Count(*) AS Rows FROM ") + counted.table);
    result["counts"][counted.name] = std::get<std::int32_t>(count);
  }
  program.RaiseEngineError();
  return result;
}

void PrintAsText(const Json& company) {
  std::cout << "Company:          " << company["name"].get<std::string>() << '\n'
            << "Legal name:       " << company["legalName"].get<std::string>() << '\n'
            << "Business number:  " << company["businessNumber"].get<std::string>() << '\n'
            << "Data file:        " << company["file"].get<std::string>() << '\n'
            << "Current year:     " << company["currentYear"].get<std::string>() << '\n'
            << "Year-end archive: " << (company["archive"].get<bool>() ? "yes" : "no") << '\n';
  for (const Json& industry : company["industries"]) {
    std::cout << "Industry " << industry["slot"].get<std::string>() << ":       "
              << industry["description"].get<std::string>() << ", identifier "
              << industry["identifier"].get<std::string>() << ", SIC "
              << industry["sic"].get<std::string>() << ", rate "
              << ShortestText(industry["rate"].get<double>()) << " per $100\n";
  }
  const Json& counts = company["counts"];
  std::cout << "Employees:        " << counts["employees"] << ", payments posted "
            << counts["employeePayments"] << '\n'
            << "Sub-contractors:  " << counts["subContractors"] << ", payments posted "
            << counts["subContractorPayments"] << '\n';
}

}  // namespace

int RunShow(const CommandOptions& options, bool asJson) {
  CommandProgram program(options);
  program.OpenCompany();
  const Json company = Describe(program);
  if (asJson) {
    // A path may hold bytes that are no text.
    std::cout << company.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    PrintAsText(company);
  }
  return 0;
}

}  // namespace lorvane

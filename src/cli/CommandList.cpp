#include <iostream>
#include <utility>

#include "basic/RuntimeError.h"
#include "cli/Commands.h"
#include "company/cCompany.h"
#include "people/NoDate.h"
#include "people/cEmployee.h"
#include "people/cSubContractor.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

// The letters of the industries, as they are given to the other commands: "A D".
std::string LettersOf(const PerSlot<bool>& industries) {
  std::string letters;
  for (const IndustrySlot slot : kAllSlots) {
    if (industries[slot]) {
      letters += letters.empty() ? "" : " ";
      letters += LetterOf(slot);
    }
  }
  return letters;
}

Value DateValue(const std::string& stored) {
  const std::string shown = ShownDate(stored);
  const std::optional<DateTime> date = ParseDate(shown);
  return date && shown != kNoDateShown ? Value(*date) : Value();
}

template <typename Person, typename RowOf>
void AddRows(CommandProgram& program, std::int32_t orderBy, ReportSection& list, RowOf rowOf) {
  Person person;
  person.SetDataConnection(program.GetSession().gDataConn.get());
  person.OrderByFilter = orderBy;
  bool more = person.OpenRecordset();
  while (true) {
    if (!person.InfoMsg().empty()) {
      throw RuntimeError(person.InfoCode(), person.InfoMsg());
    }
    if (!more) {
      return;
    }
    list.rows.push_back({ReportRow::Kind::kDetail, rowOf(person), {}});
    more = person.MoveNext();
  }
}

void ListEmployees(CommandProgram& program, ReportSection& list) {
  list.columns = {
      {"Id", ReportFormat::kNumber},         {"Last name", ReportFormat::kText},
      {"First name", ReportFormat::kText},   {"Initial", ReportFormat::kText},
      {"Industries", ReportFormat::kText},   {"Inactive", ReportFormat::kText},
      {"Acc. wages", ReportFormat::kMoney},  {"Max. contribution", ReportFormat::kMoney},
      {"Date of birth", ReportFormat::kDate}};
  AddRows<cEmployee>(program, cEmployee::kOrderByLastName, list, [](const cEmployee& employee) {
    return std::vector<Value>{employee.EmployeeId,
                              employee.LastName,
                              employee.FirstName,
                              employee.Initial,
                              LettersOf(employee.Ind),
                              std::string(employee.Inactive ? "yes" : ""),
                              Currency::FromDouble(employee.AccWages),
                              Currency::FromDouble(employee.MaxContrib),
                              DateValue(employee.Birth)};
  });
}

void ListSubContractors(CommandProgram& program, ReportSection& list) {
  list.columns = {{"Id", ReportFormat::kNumber},          {"Name", ReportFormat::kText},
                  {"Business No.", ReportFormat::kText},  {"Industries", ReportFormat::kText},
                  {"Contract type", ReportFormat::kText}, {"Assessable %", ReportFormat::kNumber},
                  {"Expires", ReportFormat::kDate}};
  AddRows<cSubContractor>(
      program, cSubContractor::kOrderByName, list, [](const cSubContractor& business) {
        return std::vector<Value>{business.SubContractId,    business.Name,
                                  business.BusNum,           LettersOf(business.Ind),
                                  business.ContractType,     business.PercentLabour,
                                  DateValue(business.Expiry)};
      });
}

}  // namespace

int RunList(const CommandOptions& options, const ListOptions& people) {
  CommandProgram program(options);
  program.OpenCompany();
  ReportDocument list;
  ReportSection& table = list.sections.emplace_back();
  if (people.employees) {
    list.title = "Employees on File";
    ListEmployees(program, table);
  } else {
    list.title = "Sub-Contractors on File";
    ListSubContractors(program, table);
  }
  cCompany company;
  company.SetDataConnection(program.GetSession().gDataConn.get());
  company.OpenRecordset();
  program.RaiseEngineError();
  list.headings = {company.LegalName};
  std::cout << (people.csv ? ReportAsCsv(list) : ReportAsText(list));
  return 0;
}

}  // namespace lorvane

#include "ExpectedTable.h"

#include <algorithm>

#include "basic/Text.h"
#include "data/engine/Engine.h"

namespace lorvane::model {
namespace {

std::string Flag(bool flag) { return flag ? "-1" : "0"; }

std::string Written(const std::optional<Units>& amount) {
  return amount ? UnitsText(*amount) : std::string();
}

// The six columns of a stem.
void AddSlots(std::vector<std::string>& columns, const std::string& stem) {
  for (const IndustrySlot slot : kAllSlots) {
    columns.push_back(SlotName(stem, slot));
  }
}

void AddPayeeColumns(std::vector<std::string>& columns) {
  for (const char* stem : {"Ind", "Amount", "AssessAmt", "PayDate"}) {
    AddSlots(columns, stem);
  }
}

void AddPayee(std::vector<std::string>& row, const Payee& payee) {
  for (const bool works : payee.works) {
    row.push_back(Flag(works));
  }
  for (const Entry& entry : payee.entries) {
    row.push_back(Written(entry.amount));
  }
  for (const Entry& entry : payee.entries) {
    row.push_back(Written(entry.assessAmt));
  }
  // The dates of waiting entries are never written.
  row.insert(row.end(), kAllSlots.size(), "");
}

ExpectedTable Employees(const Book& book) {
  ExpectedTable table{
      "tblEmployees",
      {"EmployeeId", "LastName", "FirstName", "Initial", "AccWages", "MaxContrib", "Inactive"},
      {},
      ""};
  AddPayeeColumns(table.columns);
  for (const auto& [id, employee] : book.employees) {
    table.rows.push_back({std::to_string(id), employee.name, employee.firstName, employee.initial,
                          Written(employee.accWages), UnitsText(employee.maxContrib),
                          Flag(employee.inactive)});
    AddPayee(table.rows.back(), employee);
  }
  return table;
}

ExpectedTable SubContractors(const Book& book) {
  ExpectedTable table{
      "tblSubContract", {"SubContractId", "Name", "ContractType", "PercentLabour"}, {}, ""};
  AddPayeeColumns(table.columns);
  for (const auto& [id, subContractor] : book.subContractors) {
    table.rows.push_back({std::to_string(id), subContractor.name, subContractor.contract,
                          UnitsText(subContractor.percent)});
    AddPayee(table.rows.back(), subContractor);
  }
  return table;
}

// A payment fills the columns of its slot alone.
ExpectedTable History(const Book& book, Kind kind, const DateTime& created) {
  const bool employees = kind == Kind::kEmployee;
  ExpectedTable table{employees ? "tblEmpHistory" : "tblSubHistory",
                      {"TransactionId", employees ? "EmployeeId" : "SubContractId", "DtCreate",
                       employees ? "AssessRt" : "Rate", "Remittance"},
                      {},
                      ""};
  if (!employees) {
    table.columns.emplace_back("PercentLabour");
  }
  for (const char* stem : {"PayDate", "Amount", "AssessAmt", "Ind"}) {
    AddSlots(table.columns, stem);
  }
  constexpr Units kUnitsOfThousandth = 10;
  for (const Payment& payment : book.Payments(kind)) {
    std::vector<std::string> row{std::to_string(payment.id), std::to_string(payment.payee),
                                 ShortDate(created), UnitsText(payment.rate * kUnitsOfThousandth),
                                 UnitsText(payment.remittance)};
    if (!employees) {
      row.push_back(UnitsText(payment.percent));
    }
    const auto add = [&](const std::string& own, const std::string& others) {
      for (const IndustrySlot slot : kAllSlots) {
        row.push_back(slot == payment.slot ? own : others);
      }
    };
    add(ShortDate(payment.date), "");
    add(UnitsText(payment.amount), "");
    add(UnitsText(payment.assessAmt), "");
    add(Flag(true), Flag(false));
    table.rows.push_back(std::move(row));
  }
  return table;
}

ExpectedTable Keys(const Book& book) {
  return {
      "tblTableIDs WHERE TableName IN ('tblEmpHistory', 'tblEmployees', 'tblSubContract', "
      "'tblSubHistory')",
      {"TableName", "NextId"},
      {{"tblEmpHistory", std::to_string(book.lastEmployeePayment)},
       {"tblEmployees", std::to_string(book.lastEmployee)},
       {"tblSubContract", std::to_string(book.lastSubContractor)},
       {"tblSubHistory", std::to_string(book.lastSubContractorPayment)}},
      ""};
}

std::vector<std::vector<std::string>> ReadRows(EngineConnection& connection,
                                               const ExpectedTable& expected) {
  std::vector<std::vector<std::string>> rows;
  for (const std::vector<Value>& values :
       connection
           .Query("SELECT " + Join(expected.columns, ", ") + " FROM " + expected.table +
                  expected.grouping + " ORDER BY " + expected.columns.front())
           .rows) {
    std::vector<std::string> row;
    row.reserve(values.size());
    for (const Value& value : values) {
      row.push_back(ListingTextOf(value));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

// The condition on a key, behind one that the table bears already.
std::string WhereKey(const ExpectedTable& expected, const std::string& key) {
  const bool number = key.find_first_not_of("0123456789") == std::string::npos;
  return (expected.table.find(" WHERE ") == std::string::npos ? " WHERE " : " AND ") +
         expected.columns.front() + " = " + (number ? key : "'" + key + "'");
}

}  // namespace

std::optional<Difference> Compare(EngineConnection& connection, const ExpectedTable& expected) {
  const std::vector<std::vector<std::string>> found = ReadRows(connection, expected);
  const std::size_t common = std::min(found.size(), expected.rows.size());
  for (std::size_t row = 0; row < common; ++row) {
    const std::string& key = expected.rows[row].front();
    for (std::size_t column = 0; column < expected.columns.size(); ++column) {
      if (found[row][column] != expected.rows[row][column]) {
        return Difference{"SELECT " + expected.columns[column] + " FROM " + expected.table +
                              WhereKey(expected, key),
                          expected.rows[row][column], found[row][column]};
      }
    }
  }
  if (found.size() != expected.rows.size()) {
    return Difference{"SELECT Count(*) FROM " + expected.table,
                      std::to_string(expected.rows.size()), std::to_string(found.size())};
  }
  return std::nullopt;
}

std::vector<ExpectedTable> TablesOf(const Book& book, const DateTime& created) {
  return {Employees(book), SubContractors(book), History(book, Kind::kEmployee, created),
          History(book, Kind::kSubContractor, created), Keys(book)};
}

}  // namespace lorvane::model

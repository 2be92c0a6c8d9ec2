#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "Amounts.h"
#include "basic/Date.h"
#include "basic/IndustrySlot.h"

namespace lorvane::model {

enum class Kind : std::uint8_t { kEmployee, kSubContractor };

/// What waits to be posted; nothing was ever written where there is no value.
struct Entry {
  std::optional<Units> amount;
  std::optional<Units> assessAmt;
};

struct Payee {
  std::string name;
  PerSlot<bool> works;
  PerSlot<Entry> entries;
};

struct Employee : Payee {
  std::string firstName;
  std::string initial;
  bool inactive = false;
  std::optional<Units> accWages;
  Units maxContrib = 0;
};

struct SubContractor : Payee {
  std::string contract;
  /// Per cent in units: 12.5 per cent is 125,000.
  Units percent = 0;
};

/// A row of the history.
struct Payment {
  int id = 0;
  int payee = 0;
  IndustrySlot slot = IndustrySlot::kA;
  DateTime date;
  Units amount = 0;
  Units assessAmt = 0;
  /// Dollars per hundred, in thousandths of a dollar.
  std::int64_t rate = 0;
  Units remittance = 0;
  /// A sub-contractor's, in units.
  Units percent = 0;
};

/// A plain book beside the system: what a company's files must hold.
struct Book {
  std::map<int, Employee> employees;
  std::map<int, SubContractor> subContractors;
  std::vector<Payment> employeePayments;
  std::vector<Payment> subContractorPayments;

  // The last key handed out; a key is never handed out again.
  int lastEmployee = 0;
  int lastSubContractor = 0;
  int lastEmployeePayment = 0;
  int lastSubContractorPayment = 0;

  /// Dollars per hundred, in thousandths of a dollar.
  PerSlot<std::int64_t> rates;

  // What the configuration file keeps.
  int currentYear = 0;
  std::string lastEntry;
  Kind kind = Kind::kEmployee;
  int industry = 1;

  /// The years that have a folder.
  std::set<std::string> archives;

  [[nodiscard]] Payee& PayeeOf(Kind which, int id);
  [[nodiscard]] const std::vector<Payment>& Payments(Kind which) const;
  [[nodiscard]] std::size_t PayeeCount(Kind which) const;
  [[nodiscard]] bool HasPayments(Kind which, int id) const;

  /// Adds a row to the history: its key and its assessment come from here.
  void Post(Kind which, Payment payment);
  /// Closes a year: a year that was closed before moves the current year on and nothing else.
  void EndYear(const std::string& year);
};

}  // namespace lorvane::model

#include "Book.h"

#include <algorithm>

namespace lorvane::model {

Payee& Book::PayeeOf(Kind which, int id) {
  if (which == Kind::kEmployee) {
    return employees.at(id);
  }
  return subContractors.at(id);
}

const std::vector<Payment>& Book::Payments(Kind which) const {
  return which == Kind::kEmployee ? employeePayments : subContractorPayments;
}

std::size_t Book::PayeeCount(Kind which) const {
  return which == Kind::kEmployee ? employees.size() : subContractors.size();
}

bool Book::HasPayments(Kind which, int id) const {
  const std::vector<Payment>& payments = Payments(which);
  return std::any_of(payments.begin(), payments.end(),
                     [&](const Payment& payment) { return payment.payee == id; });
}

void Book::Post(Kind which, Payment payment) {
  payment.rate = rates[payment.slot];
  // Cents times thousandths of a dollar per hundred dollars.
  payment.remittance = ThousandthOf(payment.assessAmt / kUnitsOfCent * payment.rate);
  if (which == Kind::kEmployee) {
    payment.id = ++lastEmployeePayment;
    employeePayments.push_back(payment);
  } else {
    payment.id = ++lastSubContractorPayment;
    subContractorPayments.push_back(payment);
  }
}

void Book::EndYear(const std::string& year) {
  if (archives.insert(year).second) {
    employeePayments.clear();
    subContractorPayments.clear();
    for (auto& [id, employee] : employees) {
      employee.accWages = 0;
    }
    lastEntry = "01/01/" + std::to_string(std::stoi(year) + 1);
  }
  ++currentYear;
}

}  // namespace lorvane::model

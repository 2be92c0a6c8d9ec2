#include <iostream>
#include <map>
#include <optional>
#include <set>

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "cli/Commands.h"
#include "cli/PaymentWindow.h"
#include "import/CsvFile.h"

namespace lorvane {
namespace {

struct Payment {
  std::int32_t id = 0;
  double amount = 0;
  std::string place;
};

template <typename Read>
auto ReadCell(Read read, const std::string& what) {
  try {
    return read();
  } catch (const RuntimeError&) {
    throw CommandFailure(what);
  }
}

std::vector<Payment> ReadPayments(const std::string& path) {
  const CsvFile file = CsvFile::Read(path);
  std::vector<Payment> payments;
  std::set<std::int32_t> ids;
  for (const CsvRow& row : file.Rows()) {
    const std::string id(row.Cell(0));
    const std::string amount(row.Cell(1));
    const bool heading = &row == &file.Rows().front() && !IsNumeric(id) && !IsNumeric(amount);
    if (row.cells.size() < 2) {
      throw CommandFailure(file.PlaceOf(row) + ": the amount is missing; a row is \"id,amount\".");
    }
    if (heading) {
      continue;
    }
    Payment payment;
    payment.place = file.PlaceOf(row);
    payment.id = ReadCell([&] { return ToLong(id); }, payment.place + ": '" + id + "' is no id.");
    payment.amount = ReadCell([&] { return ToDouble(amount); },
                              payment.place + ": '" + amount + "' is no amount.");
    if (!ids.insert(payment.id).second) {
      throw CommandFailure(payment.place + ": id " + id + " stands in an earlier row already.");
    }
    payments.push_back(std::move(payment));
  }
  return payments;
}

void CheckIds(const std::vector<Payment>& payments, const PaymentWindow& window,
              const PayeeOptions& payees) {
  for (const Payment& payment : payments) {
    if (!window.RowsById().contains(payment.id)) {
      throw CommandFailure(payment.place + ": there is no " +
                           (payees.employees ? "active employee " : "sub-contractor ") +
                           std::to_string(payment.id) + " in industry " + payees.industry + ".");
    }
  }
}

}  // namespace

int RunPay(const CommandOptions& options, const PayOptions& pay) {
  const std::vector<Payment> payments = ReadPayments(pay.paymentsFile);
  CommandProgram program(options);
  program.OpenCompanyForPayments();
  Currency total;
  PaymentWindow::Open(program, pay.payees, [&](PaymentWindow& window) {
    CheckIds(payments, window, pay.payees);
    if (payments.empty()) {
      return;
    }
    // The save reads an amount in every row, and a sub-contractor's row shows an expiry in that
    // place until it is read back.
    if (!pay.payees.employees) {
      for (const auto& [id, row] : window.RowsById()) {
        window.ReadBack(row);
      }
    }
    for (const Payment& payment : payments) {
      window.EnterAmount(window.RowsById().at(payment.id), payment.amount);
      total += Currency::FromDouble(payment.amount);
    }
    window.Save();
  });
  std::cout << "Saved " << payments.size() << " entries of " << Money(total.ToDouble())
            << " in all.\n";
  return 0;
}

}  // namespace lorvane

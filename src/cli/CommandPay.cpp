#include <algorithm>
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

// A comma that parts no thousands is no part of an amount: "1,25" isn't 125.
bool HasStrayComma(const std::string& amount) {
  constexpr std::size_t kThousands = 3;
  for (std::size_t comma = amount.find(','); comma != std::string::npos;
       comma = amount.find(',', comma + 1)) {
    const std::size_t end = amount.find_first_not_of("0123456789", comma + 1);
    if (std::min(end, amount.size()) - comma - 1 != kThousands) {
      return true;
    }
  }
  return false;
}

std::int32_t IdOf(const std::string& text) {
  const std::int32_t id = ToLong(text);
  if (ToDouble(text) != id) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return id;
}

double AmountOf(const std::string& text) {
  if (HasStrayComma(text)) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return ToDouble(text);
}

// An amount whose comma has parted it into two cells would lose its end.
void CheckEnd(const CsvRow& row, const std::string& place) {
  for (std::size_t cell = 2; cell < row.cells.size(); ++cell) {
    if (IsNumeric(row.cells[cell])) {
      throw CommandFailure(place + ": '" + row.cells[cell] +
                           "' follows the amount; an amount with a comma stands in quotes.");
    }
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
    payment.id = ReadCell([&] { return IdOf(id); }, payment.place + ": '" + id + "' is no id.");
    payment.amount = ReadCell([&] { return AmountOf(amount); },
                              payment.place + ": '" + amount + "' is no amount.");
    CheckEnd(row, payment.place);
    if (!ids.insert(payment.id).second) {
      throw CommandFailure(payment.place + ": id " + id + " stands in an earlier row already.");
    }
    payments.push_back(std::move(payment));
  }
  if (payments.empty()) {
    throw CommandFailure("'" + path + "' holds no payments; a row is \"id,amount\".");
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
    // The save reads an amount in every row, and a sub-contractor's row shows an expiry in that
    // place until it is read back.
    if (!pay.payees.employees) {
      for (const auto& [id, row] : window.RowsById()) {
        window.ReadBack(row);
      }
    }
    for (const Payment& payment : payments) {
      ReadCell(
          [&] {
            total += Currency::FromDouble(payment.amount);
            window.EnterAmount(window.RowsById().at(payment.id), payment.amount);
          },
          payment.place + ": the amount is too large.");
    }
    window.Save();
  });
  std::cout << "Saved " << payments.size() << " entries of " << Money(total.ToDouble())
            << " in all.\n";
  return 0;
}

}  // namespace lorvane

#include <algorithm>
#include <iostream>
#include <set>

#include "basic/Money.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PaymentWindow.h"
#include "import/ImportReport.h"
#include "import/sheet/CsvFile.h"

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

std::int32_t IdOf(const std::string& text) {
  const std::int32_t id = ToLong(text);
  if (ToDouble(text) != id) {
    throw RuntimeError(error_number::kTypeMismatch);
  }
  return id;
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

bool HasDigit(const std::string& text) {
  return text.find_first_of("0123456789") != std::string::npos;
}

std::vector<Payment> ReadPayments(const std::string& path) {
  const CsvFile file = CsvFile::Read(path);
  std::vector<Payment> payments;
  std::set<std::int32_t> ids;
  for (const CsvRow& row : file.Rows()) {
    const std::string id(row.Cell(0));
    const std::string amount(row.Cell(1));
    const bool heading = &row == &file.Rows().front() && !HasDigit(id) && !HasDigit(amount);
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

// Every payment's row, or none: nothing is typed before all ids are known.
std::vector<int> RowsOf(const std::vector<Payment>& payments, const PaymentWindow& window) {
  std::vector<int> rows;
  rows.reserve(payments.size());
  for (const Payment& payment : payments) {
    try {
      rows.push_back(window.RowOf(payment.id));
    } catch (const CommandFailure& failure) {
      throw CommandFailure(payment.place + ": " + failure.what());
    }
  }
  return rows;
}

}  // namespace

int RunPay(const CommandOptions& options, const PayOptions& pay) {
  static_cast<void>(SlotOfOption(pay.payees.industry));
  const std::vector<Payment> payments = ReadPayments(pay.paymentsFile);
  CommandProgram program(options);
  program.OpenCompanyForPayments();
  Currency total;
  PaymentWindow::Open(program, pay.payees, [&](PaymentWindow& window) {
    const std::vector<int> rows = RowsOf(payments, window);
    window.ShowSavedAmounts();
    for (std::size_t i = 0; i < payments.size(); ++i) {
      ReadCell(
          [&] {
            total += Currency::FromDouble(payments[i].amount);
            window.EnterAmount(rows[i], payments[i].amount);
          },
          payments[i].place + ": the amount is too large.");
    }
    window.Save();
  });
  std::cout << "Saved " << Counted(payments.size(), "entry", "entries") << " of "
            << Money(total.ToDouble()) << " in all.\n";
  return 0;
}

}  // namespace lorvane

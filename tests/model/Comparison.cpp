#include "Comparison.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "ExpectedTable.h"
#include "cli/ScriptProgram.h"
#include "reports/RemittanceFill.h"

namespace lorvane::model {
namespace {

struct Totals {
  int count = 0;
  Units amount = 0;
  Units assessAmt = 0;
};

struct Period {
  DateTime start;
  DateTime end;
};

// From the date of one payment to that of another, so that both limits are met.
Period PeriodOf(const std::vector<Payment>& payments) {
  const DateTime one = payments.front().date;
  const DateTime other = payments[payments.size() / 2].date;
  return {std::min(one, other), std::max(one, other)};
}

ExpectedTable TotalsOf(const std::vector<Payment>& payments, const Period& period, Kind kind,
                       int item) {
  std::map<int, Totals> totals;
  for (const Payment& payment : payments) {
    const bool inSlot = item == RemittanceFill::kAllIndustries || item == NumberOf(payment.slot);
    if (inSlot && payment.date >= period.start && payment.date <= period.end) {
      Totals& own = totals[payment.payee];
      ++own.count;
      own.amount += payment.amount;
      own.assessAmt += payment.assessAmt;
    }
  }
  const std::string key = kind == Kind::kEmployee ? "EmployeeId" : "SubContractId";
  ExpectedTable table{kind == Kind::kEmployee ? "tblEmpRemittance" : "tblSubRemittance",
                      {key, "Count(*)", "Sum(Amount)", "Sum(AssessAmt)"},
                      {},
                      " GROUP BY " + key};
  for (const auto& [payee, own] : totals) {
    table.rows.push_back({std::to_string(payee), std::to_string(own.count), UnitsText(own.amount),
                          UnitsText(own.assessAmt)});
  }
  return table;
}

void Fill(RemittanceFill& fill, Kind kind, const Period& period, int item) {
  if (kind == Kind::kEmployee) {
    fill.ClearEmployeeRemittance();
    static_cast<void>(fill.FillEmployeeRemittance(period.start, period.end, item));
  } else {
    bool ok = false;
    fill.ClearSubContractorRemittance(ok);
    static_cast<void>(fill.FillSubContractorRemittance(period.start, period.end, item));
  }
}

void Clear(RemittanceFill& fill, Kind kind) {
  bool ok = false;
  if (kind == Kind::kEmployee) {
    fill.ClearEmployeeRemittance();
  } else {
    fill.ClearSubContractorRemittance(ok);
  }
}

// What was found in the scratch table stands there again while the report is on the screen.
std::vector<std::string> LinesToReport(bool atDesk, Kind kind, const Period& period, int item) {
  return {atDesk ? "menu mnuFRemittanceCalc" : "menu mnuRREmpRemitt",
          kind == Kind::kEmployee ? "click optEmployee" : "click optSubContractor",
          "pick dtpStarting " + Quoted(ShortDate(period.start)),
          "pick dtpEnding " + Quoted(ShortDate(period.end)),
          "select cboIndustries " + std::to_string(item - 1),
          "click cmdOK"};
}

std::string ExpectLine(const Difference& difference) {
  return "expect sql " + Quoted(difference.statement) + " " + Quoted(difference.expected);
}

}  // namespace

bool Comparison::Holds(ScriptProgram& program, const Checkpoint& checkpoint) {
  if (!TablesHold(program, checkpoint.book) || !SettingsHold(program, checkpoint.book)) {
    return false;
  }
  if (checkpoint.kind) {
    return TotalsHold(program, checkpoint, *checkpoint.kind, RemittanceFill::kAllIndustries) &&
           TotalsHold(program, checkpoint, *checkpoint.kind, NumberOf(checkpoint.slot));
  }
  return TotalsHold(program, checkpoint, Kind::kEmployee, RemittanceFill::kAllIndustries) &&
         TotalsHold(program, checkpoint, Kind::kSubContractor, RemittanceFill::kAllIndustries);
}

// Over a connection of its own, which sees what is in the file.
bool Comparison::TablesHold(ScriptProgram& program, const Book& book) {
  const std::unique_ptr<DataConnection> own = program.GetSession().gDataConn->MakeTwin();
  own->OpenOrRaise();
  for (const ExpectedTable& expected : TablesOf(book, now_)) {
    if (const std::optional<Difference> difference = Compare(own->Connection(), expected)) {
      reason_ = {ExpectLine(*difference)};
      return false;
    }
  }
  return true;
}

bool Comparison::SettingsHold(ScriptProgram& program, const Book& book) {
  cINI ini = program.GetSession().Ini();
  const std::pair<const char*, std::string> settings[] = {
      {"CurrentYear", std::to_string(book.currentYear)},
      {"LastEntry", book.lastEntry},
      {"Default", book.kind == Kind::kEmployee ? "0" : "1"},
      {"Industry", std::to_string(book.industry)}};
  for (const auto& [key, value] : settings) {
    if (ini.KeyGet("Assessment", key, "") != value) {
      reason_ = {"expect ini \"Assessment\" " + Quoted(key) + " " + Quoted(value)};
      return false;
    }
  }
  return true;
}

bool Comparison::TotalsHold(ScriptProgram& program, const Checkpoint& checkpoint, Kind kind,
                            int item) {
  const std::vector<Payment>& payments = checkpoint.book.Payments(kind);
  if (payments.empty()) {
    return true;
  }
  const Period period = PeriodOf(payments);
  RemittanceFill fill(program.Context());
  Fill(fill, kind, period, item);
  const std::optional<Difference> difference =
      Compare(program.GetSession().gDataConn->Connection(), TotalsOf(payments, period, kind, item));
  Clear(fill, kind);
  if (!difference) {
    return true;
  }
  reason_ = LinesToReport(checkpoint.atDesk, kind, period, item);
  reason_.push_back(ExpectLine(*difference));
  return false;
}

}  // namespace lorvane::model

#include "cli/BooksCheck.h"

#include <functional>
#include <map>
#include <optional>
#include <set>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "cli/CeilingCheck.h"
#include "cli/PostedPayments.h"
#include "data/modDataAccess.h"
#include "payments/rules/AssessmentRules.h"

namespace lorvane {
namespace {

using Findings = std::vector<std::string>;

constexpr int kYearsAhead = 2;

// The year to which payments may be posted; nothing when none is set yet.
std::optional<int> CurrentYearOf(const Session& session) {
  try {
    const int year = ToInteger(session.Ini().KeyGet("Assessment", "CurrentYear", ""));
    return year == 0 ? std::nullopt : std::optional(year);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

using Add = std::function<void(const std::string&)>;

// Numbers that no payment has may be too large to reckon with.
template <typename Step>
void Reckon(const Add& add, Step step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    add("its amounts can't be reckoned with (" + error.Description() + ").");
  }
}

// The checks of one row that are the same for both kinds of payee.
class PaymentCheck {
 public:
  PaymentCheck(const PayeeKind& kind, const PayeeNames& names, std::optional<int> currentYear)
      : kind_(kind), names_(names), currentYear_(currentYear) {}

  [[nodiscard]] Findings Check(const PostedPayment& payment) const {
    Findings findings;
    const Add add = [&](const std::string& what) {
      findings.push_back(Named(payment) + ": " + what);
    };
    if (names_.count(payment.payeeId) == 0) {
      add(std::string("no ") + kind_.noun + " " + std::to_string(payment.payeeId) + " is on file.");
    }
    if (payment.parts.size() == 1) {
      CheckPart(payment.parts.front(), add);
      Reckon(add, [&] { CheckRemittance(payment, add); });
    } else {
      add(WhereItStands(payment));
    }
    CheckCreated(payment, add);
    return findings;
  }

  // How a finding names the payment: whose, of which day, in which industry.
  [[nodiscard]] std::string Named(const PostedPayment& payment) const {
    std::string text = "Payment " + std::to_string(payment.id) + " to " +
                       PayeeText(kind_, names_, payment.payeeId);
    if (payment.parts.size() == 1) {
      const PaymentPart& part = payment.parts.front();
      text += part.date ? " of " + ShortDate(*part.date) : "";
      text += std::string(" in industry ") + LetterOf(part.slot);
    }
    return text;
  }

 private:
  static std::string WhereItStands(const PostedPayment& payment) {
    if (payment.parts.empty()) {
      return "it stands in no industry.";
    }
    std::vector<std::string> letters;
    for (const PaymentPart& part : payment.parts) {
      letters.emplace_back(1, LetterOf(part.slot));
    }
    return "it stands in the industries " + Join(letters, ", ") +
           " at once, but a payment belongs to one.";
  }

  void CheckPart(const PaymentPart& part, const Add& add) const {
    if (!part.isMarked) {
      add(SlotName("Ind", part.slot) + " isn't set, so the lists of that industry leave it out.");
    }
    if (part.amount == Currency()) {
      add("its amount is 0.00, and nothing is posted without an amount.");
    }
    if (!part.date) {
      add("it has no date.");
    } else if (currentYear_ && part.date->year != *currentYear_) {
      add("its date lies outside the current year, " + std::to_string(*currentYear_) + ".");
    }
  }

  static void CheckRemittance(const PostedPayment& payment, const Add& add) {
    const Currency assessable = payment.parts.front().assessable;
    const Currency expected =
        Currency::FromDouble(RemittanceOf(payment.rate, assessable.ToDouble()));
    if (payment.remittance != expected) {
      add("the assessment is " + AmountText(payment.remittance) + " instead of " +
          AmountText(expected) + ": " + AmountText(assessable) + " is assessable at " +
          ShortestText(payment.rate) + " per $100.");
    }
  }

  // Payments of a year are entered in it or long after it, and ahead of it where years are closed
  // early. What was entered longer ago, a year end has taken out since.
  void CheckCreated(const PostedPayment& payment, const Add& add) const {
    if (!payment.created) {
      add("the day on which it was posted (DtCreate) is missing, so a year end would leave it "
          "here.");
    } else if (currentYear_ && payment.created->year < *currentYear_ - kYearsAhead) {
      add("it was posted on " + ShortDate(payment.created->Day()) +
          ", too long ago for the current year, " + std::to_string(*currentYear_) + ".");
    }
  }

  const PayeeKind& kind_;
  const PayeeNames& names_;
  std::optional<int> currentYear_;
};

// The wages and ceilings of the employees.
class WagesCheck {
 public:
  // Somebody with an amount that is none is left out, with a sentence added to `findings`.
  WagesCheck(EngineConnection& connection, const PayeeNames& names, std::optional<int> currentYear,
             Findings& findings)
      : names_(names), currentYear_(currentYear) {
    const ResultTable table = connection.Query(
        "SELECT EmployeeId, AccWages, MaxContrib FROM tblEmployees ORDER BY EmployeeId");
    std::map<std::int32_t, Currency> ceilings;
    for (const std::vector<Value>& row : table.rows) {
      const std::int32_t id = NullToLong(row[0]);
      try {
        accWages_[id] = NullToCurrency(row[1]);
        ceilings[id] = NullToCurrency(row[2]);
      } catch (const RuntimeError& error) {
        accWages_.erase(id);
        findings.push_back(Named(id) +
                           ": the accumulated wages or the maximum contribution can't "
                           "be understood. " +
                           error.Description());
      }
    }
    ceilings_ = CeilingCheck(std::move(ceilings));
  }

  std::string Next(const PostedPayment& payment) {
    if (!Counts(payment)) {
      return {};
    }
    if (payment.parts.size() == 1) {
      const PaymentPart& part = payment.parts.front();
      return ceilings_.Next(payment.payeeId, part.amount, part.assessable);
    }
    for (const PaymentPart& part : payment.parts) {
      ceilings_.AddWages(payment.payeeId, part.amount);
    }
    return {};
  }

  [[nodiscard]] Findings CheckAccWages() const {
    Findings findings;
    for (const auto& [id, stored] : accWages_) {
      const Currency posted = ceilings_.WagesOf(id);
      if (stored != posted) {
        findings.push_back(Named(id) + ": the accumulated wages are " + AmountText(stored) +
                           " instead of " + AmountText(posted) +
                           ", which is what the payments of the year come to.");
      }
    }
    return findings;
  }

 private:
  [[nodiscard]] std::string Named(std::int32_t id) const {
    return PayeeText(kEmployeeKind, names_, id);
  }

  // A year end sets the wages to zero and leaves a row without DtCreate where it is: one of an
  // earlier year is part of nobody's wages.
  [[nodiscard]] bool Counts(const PostedPayment& payment) const {
    return payment.created || payment.parts.empty() || !payment.parts.front().date ||
           payment.parts.front().date->year == currentYear_;
  }

  const PayeeNames& names_;
  std::optional<int> currentYear_;
  std::map<std::int32_t, Currency> accWages_;
  CeilingCheck ceilings_{{}};
};

class BooksCheck {
 public:
  explicit BooksCheck(const Session& session)
      : connection_(session.gDataConn->Connection()), currentYear_(CurrentYearOf(session)) {}

  Findings Run() {
    CheckEmployees();
    CheckSubContractors();
    return std::move(findings_);
  }

 private:
  void CheckEmployees() {
    const PayeeNames names = NamesOf(connection_, kEmployeeKind);
    WagesCheck wages(connection_, names, currentYear_, findings_);
    CheckHistory(kEmployeeKind, names,
                 [&](const PostedPayment& payment) { return wages.Next(payment); });
    Append(wages.CheckAccWages());
    CheckScratch(kEmployeeKind, names);
  }

  void CheckSubContractors() {
    const PayeeNames names = NamesOf(connection_, kSubContractorKind);
    CheckHistory(kSubContractorKind, names, [](const PostedPayment&) { return std::string(); });
    CheckScratch(kSubContractorKind, names);
  }

  void CheckHistory(const PayeeKind& kind, const PayeeNames& names,
                    const std::function<std::string(const PostedPayment&)>& next) {
    const PaymentCheck check(kind, names, currentYear_);
    const std::vector<PostedPayment> payments = ReadPayments(connection_, kind, findings_);
    if (!payments.empty() && !currentYear_) {
      findings_.push_back("No current year is set in LorvaneConfig.ini, though " +
                          std::to_string(payments.size()) + " payments stand in " + kind.history +
                          ".");
    }
    for (const PostedPayment& payment : payments) {
      Append(check.Check(payment));
      const Add add = [&](const std::string& what) {
        findings_.push_back(check.Named(payment) + ": " + what);
      };
      Reckon(add, [&] {
        const std::string finding = next(payment);
        if (!finding.empty()) {
          add(finding);
        }
      });
    }
  }

  void CheckScratch(const PayeeKind& kind, const PayeeNames& names) {
    const ResultTable table =
        connection_.Query(std::string("SELECT ") + kind.key + " FROM " + kind.scratch);
    if (table.rows.empty()) {
      return;
    }
    findings_.push_back(std::string("The scratch table ") + kind.scratch + " holds " +
                        std::to_string(table.rows.size()) +
                        " rows, but is empty when no report is open.");
    std::set<std::int32_t> strangers;
    for (const std::vector<Value>& row : table.rows) {
      const std::int32_t id = NullToLong(row.front());
      if (names.count(id) == 0 && strangers.insert(id).second) {
        findings_.push_back(std::string("The scratch table ") + kind.scratch +
                            " holds payments to " + PayeeText(kind, names, id) +
                            ", who isn't on file.");
      }
    }
  }

  void Append(const Findings& more) { findings_.insert(findings_.end(), more.begin(), more.end()); }

  EngineConnection& connection_;
  std::optional<int> currentYear_;
  Findings findings_;
};

}  // namespace

std::vector<std::string> CheckBooks(const Session& session) { return BooksCheck(session).Run(); }

}  // namespace lorvane

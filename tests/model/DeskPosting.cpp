// The posting of the payment window beside the book.

#include "Desk.h"
#include "basic/RuntimeError.h"

namespace lorvane::model {
namespace {

// How the percentage of a history row is read, which is not how an entry reads it.
constexpr std::size_t kLengthReadInThree = 4;

// What the posting of sub-contractors holds from one row to the next: an amount that can't be read
// leaves that of the row before it.
struct SubContractorPosting {
  Payment payment;
  /// Once a percentage of another length than four was met, error 13 is passed over.
  bool armed = false;

  void TypeMismatch() {
    if (!armed) {
      throw ProgramEnds{error_number::kTypeMismatch};
    }
    payment.percent = 0;
  }

  void Read(const DeskRow& row) {
    payment.payee = row.id;
    payment.amount = row.payment * kUnitsOfCent;
    const bool inThree = row.percent.size() == kLengthReadInThree;
    armed = armed || !inThree;
    if (const std::optional<Units> percent = LeadingPercent(row.percent, inThree ? 3 : 2)) {
      payment.percent = *percent;
    } else {
      TypeMismatch();
    }
    if (row.assessable) {
      payment.assessAmt = *row.assessable * kUnitsOfCent;
    } else {
      TypeMismatch();
    }
  }
};

}  // namespace

void Desk::Post(bool agreed, const std::optional<DateTime>& date) {
  Toggle();
  if (!agreed || !date || date->year != book_.currentYear) {
    return;
  }
  book_.lastEntry = ShortDate(*date);
  if (kind_ == Kind::kEmployee) {
    PostEmployees(*date);
  } else {
    PostSubContractors(*date);
  }
  Toggle();
  saveEnabled_ = false;
  listEnabled_ = true;
}

void Desk::PostEmployees(const DateTime& date) {
  for (std::size_t place = 0; place < rows_.size(); ++place) {
    DeskRow& row = rows_[place];
    if (!row.selected) {
      continue;
    }
    SetSelected(place, true);
    Settle(row);
    if (row.payment != 0) {
      Payment payment;
      payment.payee = row.id;
      payment.slot = *slot_;
      payment.date = date;
      payment.amount = row.payment * kUnitsOfCent;
      payment.assessAmt = *row.assessable * kUnitsOfCent;
      book_.Post(kind_, payment);
      row.accWages += row.payment;
      row.payment = 0;
      row.assessable = 0;
    }
  }
  SaveRows();
}

void Desk::PostSubContractors(const DateTime& date) {
  SubContractorPosting posting;
  posting.payment.slot = *slot_;
  posting.payment.date = date;
  for (std::size_t place = 0; place < rows_.size(); ++place) {
    DeskRow& row = rows_[place];
    if (!row.selected) {
      continue;
    }
    SetSelected(place, true);
    posting.Read(row);
    if (row.payment != 0) {
      book_.Post(kind_, posting.payment);
      row.payment = 0;
      row.assessable = 0;
    }
  }
  try {
    SaveRows();
  } catch (const ProgramEnds&) {
    posting.TypeMismatch();
  }
}

}  // namespace lorvane::model

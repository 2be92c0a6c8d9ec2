#include "reports/RemittanceFill.h"

#include <optional>
#include <utility>

#include "basic/IndustrySlot.h"
#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "company/cIndustry.h"
#include "data/Recordset.h"
#include "data/modDataAccess.h"
#include "people/cEmployee.h"
#include "people/cSubContractor.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {

/// One kind of payee: where its history lies and how the columns of the two tables answer each
/// other.
struct RemittanceKind {
  const char* history;
  const char* idColumn;
  /// The history's columns that hold for a whole row, as the statements list them.
  const char* rowColumns;
  const char* scratchDate;
  const char* target;
};

namespace {

constexpr RemittanceKind kEmployees{
    "tblEmpHistory", "EmployeeId", "AssessRt", "Date",
    "SELECT EmployeeId, Date, Amount, AssessAmt, AssessRt, Industry FROM tblEmpRemittance"};
constexpr RemittanceKind kSubContractors{
    "tblSubHistory", "SubContractId", "PercentLabour, Rate", "PayDate",
    "SELECT SubContractId, PayDate, Amount, PercentLabour, AssessAmt, Rate, Industry FROM "
    "tblSubRemittance"};
constexpr const char* kSummaryTarget =
    "SELECT SubContractId, PayDate, Amount, PercentLabour, AssessAmt, Rate, Industry, Name FROM "
    "tblSubRemittance";

// Marks a row made by a pass over all industries: the row's own slot isn't kept.
constexpr const char* kAllLetter = "Z";

// A period as it goes into a statement: the short form of its dates between two # signs.
std::string InPeriod(IndustrySlot slot, const DateTime& start, const DateTime& end) {
  const std::string date = SlotName("PayDate", slot);
  return date + " >= #" + ShortDate(start) + "# AND " + date + " <= #" + ShortDate(end) + "#";
}

std::string SlotTriple(IndustrySlot slot) {
  return SlotName("PayDate", slot) + ", " + SlotName("Amount", slot) + ", " +
         SlotName("AssessAmt", slot);
}

std::string SlotTriples() {
  std::string columns;
  for (const IndustrySlot slot : kAllSlots) {
    columns += (columns.empty() ? "" : ", ") + SlotTriple(slot);
  }
  return columns;
}

std::string HistoryStatement(const RemittanceKind& kind, const DateTime& start, const DateTime& end,
                             int industryItem) {
  const std::string head = std::string("SELECT TransactionId, ") + kind.idColumn + ", ";
  if (const std::optional<IndustrySlot> slot = SlotOfNumber(industryItem)) {
    const std::string flag = SlotName("Ind", *slot);
    return head + SlotTriple(*slot) + ", " + kind.rowColumns + ", " + flag + " FROM " +
           kind.history + " WHERE " + flag + " = -1 AND " + InPeriod(*slot, start, end);
  }
  std::string ranges;
  for (const IndustrySlot slot : kAllSlots) {
    ranges += (ranges.empty() ? "" : " OR ") + InPeriod(slot, start, end);
  }
  return head + kind.rowColumns + ", " + SlotTriples() + " FROM " + kind.history + " WHERE " +
         ranges;
}

// The slot to copy: the one asked for, or else the first with a date.
std::optional<IndustrySlot> SlotToCopy(const Recordset& history, int industryItem) {
  if (const std::optional<IndustrySlot> slot = SlotOfNumber(industryItem)) {
    return slot;
  }
  for (const IndustrySlot slot : kAllSlots) {
    if (!IsNull(history.Field(SlotName("PayDate", slot)))) {
      return slot;
    }
  }
  return std::nullopt;
}

Value TextOrNull(const std::string& text, std::size_t columnSize) {
  return text.empty() ? Value() : Value(Left(text, columnSize));
}

// Sizes of the scratch tables' columns: longer names are cut here, never in the tables of record.
constexpr std::size_t kNameSize = 75;
constexpr std::size_t kFirstNameSize = 50;
constexpr std::size_t kInitialSize = 1;

}  // namespace

RemittanceFill::RemittanceFill(ScreenContext context, ProgressBar* progress)
    : context_(context), progress_(progress) {}

void RemittanceFill::ClearEmployeeRemittance() {
  const DataConnection& session = *context_.session.gDataConn;
  const std::unique_ptr<DataConnection> own = session.MakeAnother();
  own->SetProviderConst(DataConnection::kJet);
  own->DataSource = session.DataSource;
  own->Password = session.Password;
  own->DataOpen();
  own->Connection().Execute("DELETE FROM tblEmpRemittance");
}

void RemittanceFill::ClearSubContractorRemittance(bool& ok) {
  context_.session.gDataConn->Connection().Execute("DELETE * FROM tblSubRemittance");
  ok = true;
}

bool RemittanceFill::FillEmployeeRemittance(const DateTime& start, const DateTime& end,
                                            int industryItem) {
  return Trapped([&] {
    return Fill(kEmployees, HistoryStatement(kEmployees, start, end, industryItem),
                kEmployees.target, industryItem, nullptr);
  });
}

bool RemittanceFill::FillSubContractorRemittance(const DateTime& start, const DateTime& end,
                                                 int industryItem) {
  return Trapped([&] {
    return Fill(kSubContractors, HistoryStatement(kSubContractors, start, end, industryItem),
                kSubContractors.target, industryItem, nullptr);
  });
}

bool RemittanceFill::FillSubContractorSummary() {
  return Trapped([&] {
    return Fill(kSubContractors,
                "SELECT TransactionId, SubContractId, " + SlotTriples() +
                    ", PercentLabour, Rate FROM tblSubHistory ",
                kSummaryTarget, kAllIndustries, "Not assigned");
  });
}

bool RemittanceFill::Fill(const RemittanceKind& kind, const std::string& historyStatement,
                          const std::string& targetStatement, int industryItem, const char* name) {
  DataConnection& connection = *context_.session.gDataConn;
  counter_ = 1;
  context_.services.SetPointer(pointer::kHourglass);
  const auto batch = connection.MakeBatch();
  Recordset history;
  history.Open(connection.Connection(), historyStatement);
  PassOverProgress([&] { SetProgressMaximum(static_cast<double>(history.RecordCount())); });
  Recordset target;
  target.OpenForUpdate(connection.Connection(), targetStatement);
  const std::optional<IndustrySlot> only = SlotOfNumber(industryItem);
  for (; !history.Eof(); history.MoveNext(), counter_ = NextInteger(counter_)) {
    PassOverProgress([&] { SetProgressValue(counter_); });
    target.AddNew();
    target.SetField(kind.idColumn, history.Field(kind.idColumn));
    if (const std::optional<IndustrySlot> slot = SlotToCopy(history, industryItem)) {
      target.SetField(kind.scratchDate, history.Field(SlotName("PayDate", *slot)));
      target.SetField("Amount", history.Field(SlotName("Amount", *slot)));
      target.SetField("AssessAmt", history.Field(SlotName("AssessAmt", *slot)));
    }
    for (const std::string& column : Split(kind.rowColumns, ',')) {
      target.SetField(Trim(column), history.Field(Trim(column)));
    }
    target.SetField("Industry", only ? std::string(1, LetterOf(*only)) : std::string(kAllLetter));
    if (name != nullptr) {
      target.SetField("Name", std::string(name));
    }
    target.Update();
  }
  const bool hasRows = history.RecordCount() != 0;
  if (hasRows) {
    LookUpNames(kind);
  }
  Commit(batch);
  context_.services.SetPointer(pointer::kDefault);
  return hasRows;
}

void RemittanceFill::LookUpNames(const RemittanceKind& kind) {
  if (&kind == &kEmployees) {
    LookUpEmployeeNames();
  } else {
    LookUpSubContractorNames();
  }
}

void RemittanceFill::LookUpEmployeeNames() {
  cEmployee employee;
  LookUp("SELECT * FROM tblEmpRemittance", employee, [&](Recordset& rows) {
    employee.WhereFilter = cEmployee::kWhereKey;
    employee.EmployeeId = NullToLong(rows.Field("EmployeeId"));
    if (!employee.Find()) {
      return false;
    }
    rows.SetField("LastName", TextOrNull(employee.LastName, kNameSize));
    rows.SetField("FirstName", TextOrNull(employee.FirstName, kFirstNameSize));
    rows.SetField("Initial", TextOrNull(employee.Initial, kInitialSize));
    return true;
  });
}

void RemittanceFill::LookUpSubContractorNames() {
  cSubContractor subContractor;
  LookUp("SELECT * FROM tblSubRemittance", subContractor, [&](Recordset& rows) {
    subContractor.SelectFilter = cSubContractor::kSelectNames;
    subContractor.WhereFilter = cSubContractor::kWhereKey;
    subContractor.SubContractId = NullToLong(rows.Field("SubContractId"));
    if (!subContractor.Find()) {
      return false;
    }
    rows.SetField("Name", TextOrNull(subContractor.Name, kNameSize));
    return true;
  });
}

// Goes through the scratch table; a payee who isn't on file is told, row by row, and left as it is.
template <typename NameRow>
void RemittanceFill::LookUp(const char* statement, Record& payee, NameRow nameRow) {
  DataConnection& connection = *context_.session.gDataConn;
  payee.SetDataConnection(&connection);
  Recordset rows;
  rows.OpenForUpdate(connection.Connection(), statement);
  SetProgressMaximum(static_cast<double>(rows.RecordCount()));
  for (counter_ = 1; !rows.Eof(); counter_ = NextInteger(counter_), rows.MoveNext()) {
    SetProgressValue(counter_);
    if (!nameRow(rows)) {
      context_.services.MsgBox(payee.InfoMsg());
    }
    rows.Update();
  }
}

void RemittanceFill::IndustryHeading(int industryItem, RemittanceHeadings& headings) {
  cIndustry industries;
  industries.SetDataConnection(context_.session.gDataConn.get());
  const std::optional<IndustrySlot> slot = SlotOfNumber(industryItem);
  if (industries.OpenRecordset() && slot) {
    headings.IndustryDesc = industries.Desc[*slot];
    headings.Identifier = industries.Identifier[*slot];
  }
}

void RemittanceFill::AllIdentifiers(RemittanceHeadings& headings) {
  cIndustry industries;
  industries.SetDataConnection(context_.session.gDataConn.get());
  if (!industries.OpenRecordset()) {
    return;
  }
  for (const IndustrySlot slot : kAllSlots) {
    if (!industries.Ind[slot]) {
      continue;
    }
    if (slot == IndustrySlot::kA || headings.Identifier.empty()) {
      headings.Identifier = industries.Identifier[slot];
    } else {
      headings.Identifier += " | " + industries.Identifier[slot];
    }
  }
}

void RemittanceFill::SetProgressMaximum(double maximum) {
  if (progress_ != nullptr) {
    progress_->SetMaximum(maximum);
  }
}

void RemittanceFill::SetProgressValue(std::int16_t value) {
  if (progress_ != nullptr) {
    progress_->SetValue(value);
  }
}

// The one error trap of a fill operation: whatever is left shows its number and description.
template <typename Operation>
bool RemittanceFill::Trapped(Operation operation) {
  try {
    return operation();
  } catch (const RuntimeError& error) {
    context_.services.SetPointer(pointer::kDefault);
    ShowError(context_, error, box::kPlain);
    return false;
  }
}

// The part of the trap that lets the display fail: the value goes back to 1 and work goes on.
template <typename Statement>
void RemittanceFill::PassOverProgress(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kInvalidPropertyValue) {
      throw;
    }
    SetProgressValue(1);
  }
}

}  // namespace lorvane

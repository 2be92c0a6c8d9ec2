// What is done with people.

#include "Steps.h"

namespace lorvane::model {
namespace {

struct Contract {
  const char* type;
  int percent;
};

constexpr Contract kContracts[] = {
    {"Labour Only", 100},        {"Labour and Materials", 50},
    {"Courier Service", 50},     {"Trucking and Leased Equipment", 25},
    {"Logging (Chain Saw)", 75}, {"Clearance Letter Supplied", 0},
    {"Exempt Industry", 0}};
constexpr Units kUnitsOfPercent = 10000;
// What a new employee begins with.
constexpr Units kNewMaximum = 411000000;

// Names rise with the keys, and no two are the same.
std::string NameOf(int id) { return "O'Dell " + std::to_string(1000 + id); }

std::string EntryOf(const Employee& employee) {
  return employee.name + ", " + employee.firstName + " " + employee.initial;
}

}  // namespace

void Steps::OpenPeople(Kind kind) {
  script_.Add(kind == Kind::kEmployee ? "menu mnuFEmployees" : "menu mnuFSubContractors");
}

// The payments behind the window are read again.
void Steps::ClosePeople() {
  script_.Add("close");
  if (desk_) {
    desk_->Refresh();
  }
}

void Steps::ChangeIndustries(PerSlot<bool>& works, bool atLeastOneChange) {
  bool changed = false;
  for (const IndustrySlot slot : kAllSlots) {
    bool others = false;
    for (const IndustrySlot other : kAllSlots) {
      others = others || (other != slot && works[other]);
    }
    const bool last = slot == IndustrySlot::kF && atLeastOneChange && !changed;
    if ((last || dice_.Chance(1, 2)) && (others || !works[slot])) {
      works[slot] = !works[slot];
      script_.Add((works[slot] ? "tick " : "untick ") + SlotName("chkInd", slot));
      changed = true;
    }
  }
}

void Steps::AddEmployee() {
  OpenPeople(Kind::kEmployee);
  if (!book_.employees.empty()) {
    script_.Add("click cmdAdd");
  }
  Employee employee;
  employee.name = NameOf(++book_.lastEmployee);
  employee.firstName = dice_.Chance(1, 2) ? "Ann" : "Bo";
  employee.initial = dice_.Chance(1, 2) ? "J" : "";
  script_.Add("type txtLastName " + Quoted(employee.name));
  script_.Add("type txtInitial " + Quoted(employee.initial));
  script_.Add("type txtFirstName " + Quoted(employee.firstName));
  ChangeIndustries(employee.works, true);
  employee.maxContrib = kNewMaximum;
  if (dice_.Chance(4, 5)) {
    const std::string typed = AnyMaximum(dice_);
    script_.Add("type txtMaxContrib " + Quoted(typed));
    employee.maxContrib = TypedCents(typed) * kUnitsOfCent;
  }
  script_.Add("click cmdApply");
  book_.employees[book_.lastEmployee] = employee;
  ClosePeople();
}

void Steps::ChangeEmployee() {
  Employee& employee = book_.employees.at(AnyPayee(Kind::kEmployee));
  OpenPeople(Kind::kEmployee);
  script_.Add("select lstEmployees " + Quoted(EntryOf(employee)));
  const bool activity = dice_.Chance(1, 3);
  if (activity) {
    employee.inactive = !employee.inactive;
    script_.Add(employee.inactive ? "tick chkInactive" : "untick chkInactive");
  }
  // The window shows two decimals of a maximum, and saves what it shows.
  employee.maxContrib = ShownCents(employee.maxContrib) * kUnitsOfCent;
  const bool maximum = dice_.Chance(1, 2);
  if (maximum) {
    const std::string typed = AnyMaximum(dice_);
    script_.Add("type txtMaxContrib " + Quoted(typed));
    employee.maxContrib = TypedCents(typed) * kUnitsOfCent;
  }
  if (!activity && !maximum) {
    ChangeIndustries(employee.works, false);
  }
  script_.Add("type txtCity \"Truro\"");
  employee.accWages = employee.accWages.value_or(0);
  script_.Add("click cmdApply");
  ClosePeople();
}

void Steps::DeleteEmployee() {
  const int id = AnyPayee(Kind::kEmployee);
  Delete(Kind::kEmployee, "lstEmployees " + Quoted(EntryOf(book_.employees.at(id))),
         book_.employees, id);
}

void Steps::DeleteSubContractor() {
  const int id = AnyPayee(Kind::kSubContractor);
  Delete(Kind::kSubContractor, "lstSubContractors " + Quoted(book_.subContractors.at(id).name),
         book_.subContractors, id);
}

template <typename Payees>
void Steps::Delete(Kind kind, const std::string& entry, Payees& payees, int id) {
  OpenPeople(kind);
  script_.Add("select " + entry);
  const bool agreed = dice_.Chance(4, 5);
  const bool held = book_.HasPayments(kind, id);
  if (!held) {
    script_.Add(agreed ? "answer yes" : "answer no");
  }
  script_.Add("click cmdTbr_11");
  if (!held && agreed) {
    payees.erase(id);
    if (payees.empty()) {
      // The window begins a new one, which isn't saved.
      script_.Add("answer no");
    }
  }
  ClosePeople();
}

void Steps::AddSubContractor() {
  OpenPeople(Kind::kSubContractor);
  if (!book_.subContractors.empty()) {
    script_.Add("click cmdAdd");
  }
  SubContractor subContractor;
  subContractor.name = NameOf(++book_.lastSubContractor);
  script_.Add("type txtSubName " + Quoted(subContractor.name));
  const Contract& contract = kContracts[dice_.Place(std::size(kContracts))];
  subContractor.contract = contract.type;
  subContractor.percent = contract.percent * kUnitsOfPercent;
  script_.Add("select cboContract " + Quoted(contract.type));
  ChangeIndustries(subContractor.works, true);
  script_.Add("click cmdApply");
  book_.subContractors[book_.lastSubContractor] = subContractor;
  ClosePeople();
}

void Steps::ChangeSubContractor() {
  SubContractor& subContractor = book_.subContractors.at(AnyPayee(Kind::kSubContractor));
  OpenPeople(Kind::kSubContractor);
  script_.Add("select lstSubContractors " + Quoted(subContractor.name));
  if (dice_.Chance(1, 2)) {
    const Contract& contract = kContracts[dice_.Place(std::size(kContracts))];
    subContractor.contract = contract.type;
    subContractor.percent = contract.percent * kUnitsOfPercent;
    script_.Add("select cboContract " + Quoted(contract.type));
  } else {
    ChangeIndustries(subContractor.works, false);
  }
  script_.Add("type txtCity \"Truro\"");
  script_.Add("click cmdApply");
  ClosePeople();
}

}  // namespace lorvane::model

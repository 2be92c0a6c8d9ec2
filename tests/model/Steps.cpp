// The choice of a step, and what is done at the main window.

#include "Steps.h"

#include "basic/Date.h"

namespace lorvane::model {
namespace {

constexpr std::size_t kMostEmployees = 7;
constexpr std::size_t kMostSubContractors = 5;
constexpr std::int64_t kThousandthsInFraction = 100000;

// A rate of 1.845 dollars per hundred, in thousandths, as the fraction that its column holds.
std::string FractionText(std::int64_t rate) {
  return "0." + std::to_string(kThousandthsInFraction + rate).substr(1);
}

std::string StatementToUse(IndustrySlot slot, std::int64_t rate) {
  return "sql \"UPDATE tblIndustries SET " + SlotName("Ind", slot) + " = 1, " +
         SlotName("Desc", slot) + " = '" + SlotName("Slot ", slot) + "', " +
         SlotName("Rate", slot) + " = " + FractionText(rate) + "\"";
}

}  // namespace

Steps::Steps(unsigned seed, Script& script) : seed_(seed), dice_(seed, 0), script_(script) {
  constexpr int kFirstYear = 2026;
  script_.Add("open \"${DIR}/Data.mdb\"");
  script_.Add(
      "sql \"INSERT INTO tblCompany (CompanyId, LegalName, Province) VALUES (1, 'Dock', 'NS')\"");
  for (const IndustrySlot slot : kAllSlots) {
    book_.rates[slot] = dice_.Between(100, 9999);
    script_.Add(StatementToUse(slot, book_.rates[slot]));
  }
  // The first post asks for the year.
  book_.currentYear = kFirstYear;
  OpenDesk();
  script_.Add("select lstIndustries \"Slot A\"");
  desk_->ChooseIndustry(IndustrySlot::kA);
  for (const char* line :
       {"answer yes", "answer \"999\"", "answer \"2026\"", "click cmdTbr_5", "click cmdOK"}) {
    script_.Add(line);
  }
  desk_->Post(true, MakeDate(kFirstYear, 1, 1));
}

void Steps::Take(unsigned number) {
  dice_ = Dice(seed_, number);
  script_.BeginStep(number);
  std::vector<Weighted> steps{
      {book_.employees.size() < kMostEmployees ? 4 : 0, &Steps::AddEmployee},
      {book_.subContractors.size() < kMostSubContractors ? 4 : 0, &Steps::AddSubContractor},
      {book_.employees.empty() ? 0 : 2, &Steps::ChangeEmployee},
      {book_.employees.empty() ? 0 : 2, &Steps::DeleteEmployee},
      {book_.subContractors.empty() ? 0 : 2, &Steps::ChangeSubContractor},
      {book_.subContractors.empty() ? 0 : 2, &Steps::DeleteSubContractor}};
  const auto add = [&](int weight, Step step) { steps.push_back({weight, step}); };
  if (!desk_) {
    add(30, &Steps::OpenDesk);
    add(2, &Steps::ChangeRate);
    add(book_.subContractors.empty() ? 0 : 2, &Steps::ChangePercent);
    add(2, &Steps::ResetMaximum);
    add(2, &Steps::EndYear);
    add(1, &Steps::Compact);
  } else {
    const bool chosen = desk_->Slot().has_value();
    const bool menus = desk_->MenuSaveEnabled();
    add(desk_->ListEnabled() ? 25 : 0, &Steps::ChooseIndustry);
    add(desk_->Rows().empty() ? 0 : 70, &Steps::Enter);
    add(chosen && (desk_->SaveEnabled() || menus) ? 15 : 0, &Steps::Save);
    add(chosen && (desk_->UndoEnabled() || menus) ? 12 : 0, &Steps::Undo);
    add(chosen ? 3 : 0, &Steps::Refresh);
    add(chosen ? (desk_->Rows().empty() ? 1 : 30) : 0, &Steps::Post);
    add(8, &Steps::Switch);
    add(3, &Steps::GiveUp);
    add(5, &Steps::CloseDesk);
  }
  add(2, &Steps::Reopen);
  TakeOneOf(steps);
}

void Steps::TakeOneOf(const std::vector<Weighted>& steps) {
  int total = 0;
  for (const Weighted& weighted : steps) {
    total += weighted.weight;
  }
  int drawn = dice_.Between(1, total);
  for (const Weighted& weighted : steps) {
    drawn -= weighted.weight;
    if (drawn <= 0) {
      (this->*weighted.step)();
      return;
    }
  }
}

void Steps::OpenDesk() {
  script_.Add("menu mnuFEnterPayments");
  desk_.emplace(book_);
}

void Steps::ChangeRate() {
  const IndustrySlot slot = kAllSlots[dice_.Place(kAllSlots.size())];
  book_.rates[slot] = dice_.Chance(1, 8) ? 0 : dice_.Between(1, 20000);
  script_.Add("sql \"UPDATE tblIndustries SET " + SlotName("Rate", slot) + " = " +
              FractionText(book_.rates[slot]) + "\"");
}

// A percentage that no type of the window has, as an import brings it.
void Steps::ChangePercent() {
  static const std::vector<Units> kPercents{125000, 333300, 25000, 50000, 1005000, 5000, 800000};
  const int id = AnyPayee(Kind::kSubContractor);
  SubContractor& subContractor = book_.subContractors.at(id);
  subContractor.percent = dice_.OneOf(kPercents);
  script_.Add(
      "sql \"UPDATE tblSubContract SET PercentLabour = " + UnitsText(subContractor.percent) +
      " WHERE SubContractId = " + std::to_string(id) + "\"");
}

void Steps::ResetMaximum() {
  const std::string typed = dice_.Chance(1, 6) ? "-" + AnyMaximum(dice_) : AnyMaximum(dice_);
  const bool positive = TypedNumber(typed).value_or(0) > 0;
  const bool agreed = dice_.Chance(4, 5);
  script_.Add("answer " + Quoted(typed));
  if (positive) {
    script_.Add(agreed ? "answer yes" : "answer no");
  }
  script_.Add("menu mnuFResetMaxContrib");
  if (positive && agreed) {
    for (auto& [id, employee] : book_.employees) {
      employee.maxContrib = TypedUnits(typed);
    }
  }
}

void Steps::EndYear() {
  std::string year = std::to_string(ToDate(book_.lastEntry).year);
  script_.Add("answer yes");
  if (dice_.Chance(3, 4)) {
    script_.Add("answer yes");
  } else {
    year = dice_.OneOf(std::vector<std::string>{year, std::to_string(book_.currentYear), "26",
                                                "20x6", "12/31/2026"});
    script_.Add("answer no");
    script_.Add("answer " + Quoted(year));
  }
  script_.Add("menu mnuFYEProcedure");
  if (year.size() == 4 && TypedNumber(year)) {
    book_.EndYear(year);
  }
  script_.Check({book_, {}, {}, false});
}

void Steps::Compact() {
  script_.Add("answer yes");
  script_.Add("menu mnuFCompactDataBase");
  script_.Check({book_, {}, {}, false});
}

void Steps::Reopen() {
  if (desk_ || dice_.Chance(1, 2)) {
    desk_.reset();
    script_.Add("restart");
  }
  OpenCompany();
}

void Steps::OpenCompany() {
  script_.Add("open \"${DIR}/Data.mdb\"");
  script_.Check({book_, {}, {}, false});
}

int Steps::AnyPayee(Kind kind) {
  std::vector<int> ids;
  for (const auto& [id, employee] : book_.employees) {
    if (kind == Kind::kEmployee) {
      ids.push_back(id);
    }
  }
  for (const auto& [id, subContractor] : book_.subContractors) {
    if (kind == Kind::kSubContractor) {
      ids.push_back(id);
    }
  }
  return dice_.OneOf(ids);
}

}  // namespace lorvane::model

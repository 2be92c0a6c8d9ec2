// What is done at the payments.

#include <utility>

#include "Steps.h"

namespace lorvane::model {

template <typename Operation>
bool Steps::Perform(const std::string& line, const std::vector<std::string>& inside,
                    Operation operation) {
  int error = 0;
  try {
    operation();
  } catch (const ProgramEnds& ended) {
    error = ended.error;
  }
  script_.Add(error == 0 ? line : "fails " + std::to_string(error) + " " + line);
  for (const std::string& lineInside : inside) {
    script_.Add(lineInside);
  }
  if (error != 0) {
    desk_.reset();
    OpenCompany();
  }
  return error == 0;
}

void Steps::ChooseIndustry() {
  const IndustrySlot slot = kAllSlots[dice_.Place(kAllSlots.size())];
  script_.Add(std::string("select lstIndustries \"Slot ") + LetterOf(slot) + "\"");
  desk_->ChooseIndustry(slot);
  script_.Add("expect lvwPayments.count " + std::to_string(desk_->Rows().size()));
}

void Steps::Enter() {
  const std::size_t row = dice_.Place(desk_->Rows().size());
  EnterIn(row,
          dice_.Chance(1, 20) ? std::nullopt : std::optional(AnyAmount(dice_, desk_->Rows()[row])));
}

void Steps::EnterIn(std::size_t row, const std::optional<std::string>& typed) {
  script_.Add("doubleclick lvwPayments " + Quoted(std::to_string(desk_->Rows()[row].id)));
  if (typed) {
    script_.Add("type txtAmount " + Quoted(*typed));
    script_.Add("key txtAmount Enter");
  } else {
    script_.Add("key txtAmount Escape");
  }
  desk_->Enter(row, typed);
  ExpectRow(row);
}

void Steps::ExpectRow(std::size_t row) {
  const DeskRow& shown = desk_->Rows()[row];
  const bool employee = desk_->KindOfPayee() == Kind::kEmployee;
  const std::string place = "expect lvwPayments[" + std::to_string(row) + ",";
  script_.Add(place + (employee ? "3] " : "2] ") + Quoted(MoneyText(shown.payment)));
  if (shown.assessable) {
    script_.Add(place + "5] " + Quoted(MoneyText(*shown.assessable)));
  }
}

// A sub-contractor's row that shows its expiry can't be saved: most of the time it gets an amount.
void Steps::EnterBeforeSaving(bool saves) {
  if (!saves || dice_.Chance(1, 12)) {
    return;
  }
  for (std::size_t row = 0; row < desk_->Rows().size(); ++row) {
    if (!desk_->Rows()[row].assessable) {
      EnterIn(row, AnyAmount(dice_, desk_->Rows()[row]));
    }
  }
}

void Steps::EnterBeforePosting() {
  if (desk_->KindOfPayee() == Kind::kSubContractor) {
    EnterBeforeSaving(true);
    return;
  }
  for (std::size_t row = 0; row < desk_->Rows().size(); ++row) {
    if (dice_.Chance(1, 3)) {
      EnterIn(row, AnyAmount(dice_, desk_->Rows()[row]));
    }
  }
}

void Steps::Save() {
  EnterBeforeSaving(true);
  const bool button = desk_->SaveEnabled();
  Perform(button ? "click cmdTbr_2" : "menu mnuFSave", {}, [&] { desk_->Save(); });
}

void Steps::Refresh() {
  script_.Add("click cmdTbr_3");
  desk_->Refresh();
}

void Steps::Undo() {
  const bool button = desk_->UndoEnabled();
  if (desk_->Rows().empty()) {
    return;
  }
  Perform(button ? "click cmdTbr_6" : "menu mnuEUndo", {}, [&] { desk_->Undo(); });
}

void Steps::ChooseRowsToPost() {
  switch (dice_.Between(0, 3)) {
    case 0:
      script_.Add("menu mnuESelectAll");
      desk_->SelectAll();
      break;
    case 1:
      // What is selected already.
      break;
    default: {
      std::vector<std::size_t> rows;
      std::string line = "rows lvwPayments";
      for (std::size_t row = 0; row < desk_->Rows().size(); ++row) {
        if (dice_.Chance(2, 3)) {
          rows.push_back(row);
          line += " " + Quoted(std::to_string(desk_->Rows()[row].id));
        }
      }
      script_.Add(line);
      desk_->SelectRows(rows);
    }
  }
}

void Steps::Post() {
  EnterBeforePosting();
  ChooseRowsToPost();
  const Kind kind = desk_->KindOfPayee();
  const IndustrySlot slot = *desk_->Slot();
  const bool agreed = dice_.Chance(9, 10);
  std::optional<DateTime> date;
  std::vector<std::string> inside;
  script_.Add(agreed ? "answer yes" : dice_.Chance(1, 2) ? "answer no" : "answer cancel");
  if (agreed) {
    const int kindOfDate = dice_.Between(0, 19);
    if (kindOfDate > 0) {
      date = ToDate(book_.lastEntry);
    }
    if (kindOfDate > 2) {
      const int year = book_.currentYear + (kindOfDate == 3 ? 1 : kindOfDate == 4 ? -1 : 0);
      date = MakeDate(year, dice_.Between(1, 12), dice_.Between(1, 28));
      inside.push_back("pick calDate " + Quoted(ShortDate(*date)));
    }
    inside.push_back(kindOfDate > 0 ? "click cmdOK" : "click cmdCancel");
  }
  const auto post = [&] { desk_->Post(agreed, date); };
  if (Perform("click cmdTbr_5", inside, post)) {
    script_.Add(std::string("expect UnsavedEntries ") + (desk_->Unsaved() ? "true" : "false"));
    script_.Check({book_, kind, slot, true});
  }
}

void Steps::Switch() {
  const bool save = dice_.Chance(1, 2);
  if (desk_->Unsaved()) {
    EnterBeforeSaving(save);
    script_.Add(save ? "answer yes" : "answer no");
  }
  const bool employees = desk_->KindOfPayee() == Kind::kEmployee;
  Perform(employees ? "click optSubContractor" : "click optEmployee", {},
          [&] { desk_->Switch(save); });
}

void Steps::GiveUp() {
  if (!desk_->Unsaved()) {
    script_.Add("click cmdTbr_11");
    desk_->Close(false);
    desk_.reset();
    return;
  }
  const bool agreed = dice_.Chance(2, 3);
  script_.Add(agreed ? "answer yes" : "answer no");
  script_.Add("click cmdTbr_11");
  if (agreed) {
    desk_->GiveUp();
  }
}

void Steps::CloseDesk() {
  const bool save = dice_.Chance(2, 3);
  if (desk_->Unsaved()) {
    EnterBeforeSaving(save);
    script_.Add(save ? "answer yes" : dice_.Chance(1, 2) ? "answer no" : "answer cancel");
  }
  if (Perform("close", {}, [&] { desk_->Close(save); })) {
    desk_.reset();
  }
}

}  // namespace lorvane::model

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Desk.h"
#include "Dice.h"
#include "Script.h"

namespace lorvane::model {

/// Random steps of a book-keeper: each is done in the book and written down as lines of a script.
///
/// A step draws from its own number alone, so any choice of steps, in any order, makes a script
/// that can be carried out.
class Steps {
 public:
  /// Writes how the company begins.
  Steps(unsigned seed, Script& script);

  void Take(unsigned number);

 private:
  using Step = void (Steps::*)();
  struct Weighted {
    int weight;
    Step step;
  };
  void TakeOneOf(const std::vector<Weighted>& steps);

  // At the main window.
  void OpenDesk();
  void ChangeRate();
  void ChangePercent();
  void ResetMaximum();
  void EndYear();
  void Compact();
  void Reopen();

  // People, at the main window or over the payments.
  void AddEmployee();
  void ChangeEmployee();
  void DeleteEmployee();
  void AddSubContractor();
  void ChangeSubContractor();
  void DeleteSubContractor();

  // At the payments.
  void ChooseIndustry();
  void Enter();
  void EnterIn(std::size_t row, const std::optional<std::string>& typed);
  void Save();
  void Refresh();
  void Undo();
  void Post();
  void Switch();
  void GiveUp();
  void CloseDesk();

  void EnterBeforeSaving(bool saves);
  void EnterBeforePosting();
  void ChooseRowsToPost();
  void ExpectRow(std::size_t row);
  void OpenCompany();
  void OpenPeople(Kind kind);
  void ClosePeople();
  void ChangeIndustries(PerSlot<bool>& works, bool atLeastOneChange);
  [[nodiscard]] int AnyPayee(Kind kind);
  /// Chooses the payee in its window and deletes it, when nothing holds it.
  template <typename Payees>
  void Delete(Kind kind, const std::string& entry, Payees& payees, int id);
  /// Carries a line out at the payments, with the lines that run in the windows it opens. A line
  /// that ends the program is written as one that fails, and the company is opened again.
  template <typename Operation>
  bool Perform(const std::string& line, const std::vector<std::string>& inside,
               Operation operation);

  unsigned seed_;
  Dice dice_;
  Script& script_;
  Book book_;
  std::optional<Desk> desk_;
};

}  // namespace lorvane::model

#include <iostream>
#include <set>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PaymentWindow.h"
#include "import/ImportReport.h"

namespace lorvane {
namespace {

std::vector<int> RowsOf(const PaymentWindow& window, const PostOptions& post) {
  std::vector<int> rows;
  if (post.ids.empty()) {
    for (const auto& [id, row] : window.RowsById()) {
      rows.push_back(row);
    }
  }
  for (const std::int32_t id : std::set(post.ids.begin(), post.ids.end())) {
    rows.push_back(window.RowOf(id));
  }
  return rows;
}

std::string ReasonIn(const std::vector<EngineError>& errors) {
  return errors.empty()
             ? std::string()
             : " The reason: " + ErrorSentence(errors.front().number, errors.front().description);
}

}  // namespace

int RunPost(const CommandOptions& options, const PostOptions& post) {
  static_cast<void>(SlotOfOption(post.payees.industry));
  const DateTime date = DayOfArgument(post.date);
  CommandProgram program(options);
  program.OpenCompanyForPayments();
  const std::string count = std::string("SELECT Count(*) AS Rows FROM ") +
                            (post.payees.employees ? "tblEmpHistory" : "tblSubHistory");
  std::int32_t before = 0;
  std::int32_t after = 0;
  bool posted = false;
  int entries = 0;
  PaymentWindow::Open(program, post.payees, [&](PaymentWindow& window) {
    const std::vector<int> rows = RowsOf(window, post);
    window.ShowSavedAmounts();
    entries = window.EntriesIn(rows);
    before = std::get<std::int32_t>(program.QueryValue(count));
    posted = window.Post(rows, date);
    after = std::get<std::int32_t>(program.QueryValue(count));
  });
  if (!posted) {
    return program.Refused();
  }
  if (after - before < entries) {
    throw CommandFailure("Only " + std::to_string(after - before) + " of " +
                         std::to_string(entries) +
                         " payments could be written; the others are still saved as entries." +
                         ReasonIn(program.Connection().Errors()));
  }
  program.RaiseEngineError();
  std::cout << "Posted " << Counted(static_cast<std::size_t>(after - before), "payment", "payments")
            << " of " << ShortDate(date) << ".\n";
  return 0;
}

}  // namespace lorvane

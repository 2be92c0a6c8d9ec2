#pragma once

#include <functional>
#include <string>

#include "basic/IndustrySlot.h"
#include "screen/ListView.h"
#include "screen/ScreenContext.h"

namespace lorvane {

// Posting turns the entries of the list's selected rows into history rows of one slot, dated with
// the session's posting date, and clears them in the list. It can't be undone. A row with a zero
// amount writes nothing, and a history row that can't be written leaves its list row as it was, in
// silence. The save at the end writes every row of the list to its payee and reads the list again.

/// What one posting works on.
struct PostingRun {
  ScreenContext context;
  ListView& list;
  IndustrySlot slot;
  /// The slot's rate in dollars per hundred, as text.
  std::string rateText;
  std::function<void()> save;
};

/// Settles each selected employee's row against the ceiling, posts it, and moves the accumulated
/// wages. Raises 13 for a text that should be a number and isn't: the rows before it stay posted.
void PostEmployeePayments(const PostingRun& run);

/// Posts the selected sub-contractors' rows: no ceiling and no accumulated wages. Raises 13 like
/// the above, but only until a row's percentage is of other than four characters: from then on a
/// text that is no number is passed over, and any other error is shown and ends the posting without
/// the save.
void PostSubContractorPayments(const PostingRun& run);

}  // namespace lorvane

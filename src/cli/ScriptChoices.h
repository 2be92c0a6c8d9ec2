#pragma once

#include "cli/ScriptParser.h"
#include "screen/ListView.h"
#include "screen/Lists.h"

namespace lorvane {

// Which entry a script means: an index without quotes, from 0, or else the entry's text. All raise
// ScriptFailure when there is no such entry.

[[nodiscard]] int IndexOfEntry(const ListControl& list, const ScriptWord& word);
/// The text may be that of place 0 or place 1.
[[nodiscard]] int IndexOfRow(const ListView& view, const ScriptWord& word);

/// A user chooses an entry, a row or a page. A box that can be typed in takes any text. Raises
/// ScriptFailure when the control offers no choice.
void UserSelects(Control& control, const ScriptWord& word);

}  // namespace lorvane

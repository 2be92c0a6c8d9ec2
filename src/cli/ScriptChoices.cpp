#include "cli/ScriptChoices.h"

#include <optional>
#include <string>

#include "cli/ScriptControlNames.h"
#include "cli/ScriptErrors.h"
#include "screen/TabStrip.h"

namespace lorvane {
namespace {

// The index of the word's choice among `count`; -1 when there is none.
template <typename HasText>
int FindChoice(int count, const ScriptWord& word, HasText hasText) {
  if (!word.quoted) {
    if (const std::optional<int> index = ScriptNumber(word.text)) {
      return *index < count ? *index : -1;
    }
  }
  for (int index = 0; index < count; ++index) {
    if (hasText(index)) {
      return index;
    }
  }
  return -1;
}

int Checked(int index, const Control& control, const ScriptWord& word) {
  if (index < 0) {
    throw ScriptFailure{control.Name() + " has no entry " +
                        (word.quoted ? ScriptText(word.text) : word.text)};
  }
  return index;
}

int FindEntry(const ListControl& list, const ScriptWord& word) {
  return FindChoice(list.Count(), word,
                    [&](int index) { return WithLineFeeds(list.EntryText(index)) == word.text; });
}

void SelectFromCombo(ComboBox& combo, const ScriptWord& word) {
  // Dropping the list down may fill it.
  if (combo.OnDropDown) {
    combo.OnDropDown();
  }
  const int index = FindEntry(combo, word);
  if (index < 0 && combo.BoxStyle() == ComboBox::Style::kDropDown) {
    combo.SetText(word.text);
  } else {
    combo.ListControl::UserSelect(Checked(index, combo, word));
  }
}

}  // namespace

int IndexOfEntry(const ListControl& list, const ScriptWord& word) {
  return Checked(FindEntry(list, word), list, word);
}

int IndexOfRow(const ListView& view, const ScriptWord& word) {
  const auto hasText = [&](int row) {
    return WithLineFeeds(view.Cell(row, 0)) == word.text ||
           WithLineFeeds(view.Cell(row, 1)) == word.text;
  };
  return Checked(FindChoice(view.Count(), word, hasText), view, word);
}

void UserSelects(Control& control, const ScriptWord& word) {
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    SelectFromCombo(*combo, word);
  } else if (auto* list = dynamic_cast<ListControl*>(&control)) {
    list->UserSelect(IndexOfEntry(*list, word));
  } else if (auto* view = dynamic_cast<ListView*>(&control)) {
    view->UserSelectRows({IndexOfRow(*view, word)});
  } else if (auto* tabs = dynamic_cast<TabStrip*>(&control)) {
    const auto hasTitle = [&](int page) {
      return tabs->Titles()[static_cast<std::size_t>(page)] == word.text;
    };
    const int pages = static_cast<int>(tabs->Titles().size());
    tabs->UserSelect(Checked(FindChoice(pages, word, hasTitle), control, word));
  } else {
    throw ScriptFailure{control.Name() + " offers nothing to select"};
  }
}

}  // namespace lorvane

#include "cli/ScriptActions.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "basic/Text.h"
#include "cli/ScriptChoices.h"
#include "cli/ScriptControlNames.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptKeys.h"
#include "reports/ReportViewer.h"
#include "screen/Buttons.h"
#include "screen/Dates.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/Menu.h"
#include "screen/TabStrip.h"
#include "screen/TextBox.h"

namespace lorvane {
namespace {

constexpr std::string_view kColumn = ".column_";
constexpr char kPart = '.';

// "CRViewer1.next" is a part of the control CRViewer1; a name without one is the control's own.
std::string_view ControlIn(std::string_view name) { return name.substr(0, name.find(kPart)); }

// A line at work on its control.
struct Work {
  Screen& screen;
  Control& control;
  const ScriptLine& line;
  const ScriptActions::Note& note;

  [[nodiscard]] const ScriptWord& Argument() const { return line.words[2]; }
  [[noreturn]] void Fail(const std::string& reason) const {
    throw ScriptFailure{control.Name() + " " + reason};
  }
};

// What a user clicks with the mouse, and an option button too, is set by a click.
void SetTick(const Work& work, bool ticked) {
  const std::optional<std::string> checked = work.control.Attribute("checked");
  const bool isOption = dynamic_cast<OptionButton*>(&work.control) != nullptr;
  if (dynamic_cast<CheckBox*>(&work.control) == nullptr && !(isOption && ticked)) {
    work.Fail("can't be " + work.line.words[0].text + "ed");
  }
  if (checked != FlagText(ticked)) {
    work.control.UserClick();
  }
}

void Tick(const Work& work) { SetTick(work, true); }
void Untick(const Work& work) { SetTick(work, false); }

void ClickViewer(const Work& work, ReportViewer& viewer) {
  const std::string& name = work.line.words[1].text;
  const std::size_t at = name.find(kPart);
  if (at == std::string::npos || !viewer.UserPress(std::string_view(name).substr(at + 1))) {
    throw ScriptFailure{"there is no button " + name};
  }
}

void Click(const Work& work) {
  const std::string& name = work.line.words[1].text;
  if (auto* viewer = dynamic_cast<ReportViewer*>(&work.control)) {
    ClickViewer(work, *viewer);
    return;
  }
  const std::size_t at = name.find(kColumn);
  if (at == std::string::npos && name.find(kPart) != std::string::npos) {
    throw ScriptFailure{"there is no control " + name};
  }
  if (at == std::string::npos) {
    // Pages are turned with select.
    if (dynamic_cast<TabStrip*>(&work.control) == nullptr) {
      work.control.UserClick();
    }
    return;
  }
  auto* view = dynamic_cast<ListView*>(&work.control);
  const std::optional<int> column = ScriptNumber(name.substr(at + kColumn.size()));
  if (view == nullptr || !column || static_cast<std::size_t>(*column) >= view->Columns().size()) {
    throw ScriptFailure{"there is no column " + name};
  }
  view->UserColumnClick(static_cast<std::size_t>(*column));
}

void RightClick(const Work& work) { work.control.UserRightClick(); }

void ChooseFromMenu(const Work& work) {
  const auto* entry = dynamic_cast<MenuEntry*>(&work.control);
  if (entry == nullptr) {
    work.Fail("is no menu entry");
  }
  work.control.UserClick();
}

void Type(const Work& work) {
  const std::string& text = work.Argument().text;
  auto* combo = dynamic_cast<ComboBox*>(&work.control);
  if (combo != nullptr && combo->BoxStyle() == ComboBox::Style::kDropDown) {
    combo->SetText(text);
    return;
  }
  if (auto* viewer = dynamic_cast<ReportViewer*>(&work.control)) {
    if (!viewer->UserSearch(text)) {
      work.note(ScriptText(text) + " isn't found");
    }
    return;
  }
  auto* field = dynamic_cast<TextBox*>(&work.control);
  if (field == nullptr) {
    work.Fail("takes no text");
  }
  field->Select(0, Length(field->Text()));
  PressKeys(work.screen, *field,
            text.empty() ? std::vector<int>{key_code::kBackspace} : KeysOfText(text));
}

void Key(const Work& work) { PressKeys(work.screen, work.control, KeysOfWord(work.Argument())); }

// The line's work is the focus, which has been moved before.
void Focus(const Work& /*work*/) {}

void Leave(const Work& work) { work.screen.FocusNext(); }

void Select(const Work& work) { UserSelects(work.control, work.Argument()); }

std::vector<int> RowsOfWords(const Work& work, const ListView& view) {
  std::vector<int> rows;
  for (std::size_t place = 2; place < work.line.words.size(); ++place) {
    rows.push_back(IndexOfRow(view, work.line.words[place]));
  }
  return rows;
}

void SelectRows(const Work& work) {
  auto* view = dynamic_cast<ListView*>(&work.control);
  if (view == nullptr) {
    work.Fail("has no rows");
  }
  view->UserSelectRows(RowsOfWords(work, *view));
}

void DoubleClick(const Work& work) {
  const bool hasEntry = work.line.words.size() > 2;
  if (auto* view = dynamic_cast<ListView*>(&work.control); view != nullptr && hasEntry) {
    view->UserDoubleClick(IndexOfRow(*view, work.Argument()));
  } else if (auto* list = dynamic_cast<ListBox*>(&work.control); list != nullptr && hasEntry) {
    list->UserDoubleClick(IndexOfEntry(*list, work.Argument()));
  } else if (hasEntry) {
    work.Fail("has no entries to double-click");
  } else if (work.control.OnDoubleClick) {
    work.control.OnDoubleClick();
  }
}

void Pick(const Work& work) {
  const std::optional<DateTime> date = ParseDate(work.Argument().text);
  if (!date) {
    throw ScriptFailure{ScriptText(work.Argument().text) + " is no date"};
  }
  if (auto* calendar = dynamic_cast<Calendar*>(&work.control)) {
    calendar->UserPick(*date);
  } else if (auto* picker = dynamic_cast<DatePicker*>(&work.control)) {
    picker->UserPick(*date);
    if (picker->Date() != date->Day()) {
      work.note(picker->Name() + " doesn't offer " + ShortDate(*date));
    }
  } else {
    work.Fail("has no dates");
  }
}

struct Action {
  std::string_view verb;
  /// Words, the verb among them.
  std::size_t least;
  std::size_t most;
  void (*run)(const Work&);
};

constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

constexpr std::array kActions{
    Action{"click", 2, 2, Click},
    Action{"doubleclick", 2, 3, DoubleClick},
    Action{"rightclick", 2, 2, RightClick},
    Action{"menu", 2, 2, ChooseFromMenu},
    Action{"tick", 2, 2, Tick},
    Action{"untick", 2, 2, Untick},
    Action{"type", 3, 3, Type},
    Action{"key", 3, 3, Key},
    Action{"focus", 2, 2, Focus},
    Action{"leave", 2, 2, Leave},
    Action{"select", 3, 3, Select},
    Action{"rows", 2, kAnyNumber, SelectRows},
    Action{"pick", 3, 3, Pick},
};

const Action* FindAction(const ScriptWord& verb) {
  const auto* found = std::find_if(kActions.begin(), kActions.end(),
                                   [&](const Action& action) { return verb.Is(action.verb); });
  return found == kActions.end() ? nullptr : &*found;
}

// Why a user can't act on the control.
std::string Obstacle(const Control& control) {
  if (const auto* entry = dynamic_cast<const MenuEntry*>(&control)) {
    const MenuEntry* above = entry->Parent();
    if (above != nullptr && !above->Usable()) {
      return control.Name() + ": " + Obstacle(*above);
    }
  }
  return control.Name() + (control.Enabled() ? " is hidden" : " is disabled");
}

}  // namespace

bool ScriptActions::Knows(const ScriptWord& verb) { return FindAction(verb) != nullptr; }

void ScriptActions::CheckWords(const ScriptLine& line) {
  const Action& action = *FindAction(line.words[0]);
  if (line.words.size() < action.least || line.words.size() > action.most) {
    throw ScriptFailure{line.words[0].text + " stands with the wrong number of words", line.number};
  }
}

void ScriptActions::Run(ScriptProgram& program, const ScriptLine& line, const Note& note) {
  const Action& action = *FindAction(line.words[0]);
  const std::string& name = line.words[1].text;
  Control& control = program.Find(ControlIn(name));
  Screen& screen = program.ActiveScreen();
  if (!control.Usable()) {
    note(Obstacle(control));
    return;
  }
  if (!screen.MoveFocus(control)) {
    note(screen.Focus()->Name() + " keeps the focus");
    return;
  }
  // Losing the focus may have changed the screen.
  if (screen.IsClosed()) {
    note(screen.Name() + " was closed when " + control.Name() + " was to get the focus");
  } else if (!control.Usable()) {
    note(Obstacle(control));
  } else {
    action.run({screen, control, line, note});
  }
}

}  // namespace lorvane

#include "cli/ScriptValues.h"

#include <array>
#include <optional>
#include <vector>

#include "basic/Text.h"
#include "cli/ScriptControlNames.h"
#include "cli/ScriptErrors.h"
#include "cli/ScriptParser.h"
#include "screen/ListView.h"
#include "screen/Lists.h"
#include "screen/TabStrip.h"

namespace lorvane {
namespace {

std::string StatusText(const StatusPanels& status, const std::string& panel) {
  if (EqualsNoCase(panel, "Msg")) {
    return status.Msg;
  }
  if (EqualsNoCase(panel, "Assessment")) {
    return status.Assessment;
  }
  if (EqualsNoCase(panel, "Form")) {
    return status.Form;
  }
  throw ScriptFailure{"the status bar has no panel " + panel};
}

// What isn't a control's own.
std::optional<std::string> ProgramValue(ScriptProgram& program, const std::string& name) {
  constexpr std::string_view kStatus = "status.";
  const Screen& active = program.ActiveScreen();
  if (name == "title") {
    return active.Caption();
  }
  if (name == "main.title") {
    return program.MainScreen().Caption();
  }
  if (name == "active") {
    return active.Name();
  }
  if (name == "focus") {
    return active.Focus() != nullptr ? active.Focus()->Name() : std::string();
  }
  if (name == "pointer") {
    return std::to_string(program.Services().Pointer());
  }
  if (name.rfind(kStatus, 0) == 0) {
    return StatusText(program.GetSession().status, name.substr(kStatus.size()));
  }
  return std::nullopt;
}

std::string EntryAt(const Control& control, const std::vector<int>& places) {
  const auto check = [&](int count) {
    if (places[0] >= count) {
      throw ScriptFailure{control.Name() + " has no entry " + std::to_string(places[0]) +
                          ", only " + std::to_string(count) + " entries"};
    }
  };
  if (const auto* view = dynamic_cast<const ListView*>(&control)) {
    check(view->Count());
    return view->Cell(places[0], places.size() > 1 ? static_cast<std::size_t>(places[1]) : 0);
  }
  if (places.size() > 1) {
    throw ScriptFailure{control.Name() + " has no columns"};
  }
  if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
    check(list->Count());
    return list->EntryText(places[0]);
  }
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) {
    check(static_cast<int>(tabs->Titles().size()));
    return tabs->Titles()[static_cast<std::size_t>(places[0])];
  }
  throw ScriptFailure{control.Name() + " has no entries"};
}

std::optional<std::string> ControlValue(const Screen& screen, const ControlReference& reference) {
  const Control* control = screen.Find(reference.control);
  if (control == nullptr) {
    return std::nullopt;
  }
  if (!reference.places.empty()) {
    return EntryAt(*control, reference.places);
  }
  return reference.attribute.empty() ? control->ShownText()
                                     : control->Attribute(reference.attribute);
}

void DescribeEntries(const Control& control, std::string& text) {
  const auto add = [&](int index, const std::string& entry) {
    text += "    " + std::to_string(index) + " " + entry + "\n";
  };
  if (const auto* view = dynamic_cast<const ListView*>(&control)) {
    for (int row = 0; row < view->Count(); ++row) {
      std::string line = view->IsSelected(row) ? "*" : " ";
      for (const std::string& cell : view->Rows()[static_cast<std::size_t>(row)].texts) {
        line += " " + ScriptText(cell);
      }
      add(row, line);
    }
  } else if (const auto* list = dynamic_cast<const ListControl*>(&control)) {
    for (int index = 0; index < list->Count(); ++index) {
      add(index, (index == list->ListIndex() ? "* " : "  ") + ScriptText(list->EntryText(index)));
    }
  }
}

}  // namespace

std::string ReadValue(ScriptProgram& program, const std::string& name) {
  std::optional<std::string> value = ProgramValue(program, name);
  if (!value) {
    value = ControlValue(program.ActiveScreen(), ParseReference(name));
  }
  if (!value) {
    value = program.ActiveScreen().Property(name);
  }
  if (!value) {
    throw ScriptFailure{"there is no " + name + " on " + program.ActiveScreen().Name()};
  }
  return *value;
}

std::string DescribeScreen(const Screen& screen) {
  constexpr std::array kAttributes{"checked", "count", "index"};
  std::string text = screen.Name() + " " + ScriptText(screen.Caption()) + "\n";
  for (const Control* control : screen.Controls()) {
    text += "  " + control->Name() + " " + ScriptText(control->ShownText());
    for (const char* name : kAttributes) {
      if (const std::optional<std::string> value = control->Attribute(name)) {
        text += " ." + std::string(name) + " " + *value;
      }
    }
    text += control->Enabled() ? "" : " disabled";
    text += control->Visible() ? "" : " hidden";
    text += control == screen.Focus() ? " focus\n" : "\n";
    DescribeEntries(*control, text);
  }
  return text;
}

}  // namespace lorvane

#pragma once

#include "desktop/binder/WindowBinder.h"
#include "people/PeopleScreen.h"

class QGroupBox;
class QLayout;

namespace lorvane {

// What the windows of employees and of sub-contractors share.

/// The tool bar.
[[nodiscard]] QWidget* PeopleTools(WindowBinder& binder, PeopleToolBar& toolBar);
/// The list of names, and a field above it that leaves the names with what is typed.
[[nodiscard]] QWidget* PeopleNames(WindowBinder& binder, ListBox& list);
/// The industries that a person works in: one box for each of the company's.
[[nodiscard]] QGroupBox* PeopleIndustries(WindowBinder& binder, IndustryBoxes& boxes);

/// Puts a window together: the tools above, the names beside the fields, the buttons below.
void LayOutPeople(QWidget& window, QWidget* tools, QWidget* names, QWidget* fields,
                  QLayout* buttons);

}  // namespace lorvane

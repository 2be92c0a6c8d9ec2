// The widgets that WindowBinder makes for each kind of control.

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeView>

#include "basic/RuntimeError.h"
#include "desktop/binder/ButtonBindings.h"
#include "desktop/binder/FocusMark.h"
#include "desktop/binder/Icons.h"
#include "desktop/binder/ListBindings.h"
#include "desktop/binder/ListViewBinding.h"
#include "desktop/binder/Mnemonics.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/TextBinding.h"
#include "desktop/binder/TypedDateEdit.h"
#include "desktop/binder/ValueBindings.h"
#include "desktop/binder/WindowBinder.h"

namespace lorvane {
namespace {

// The widget and its binding, which the widget owns.
template <typename WidgetBinding, typename Widget, typename ControlKind>
Widget* Bound(WindowBinder& window, ControlKind& control, Widget* widget) {
  new WidgetBinding(window, control, *widget);
  return widget;
}

}  // namespace

QLineEdit* WindowBinder::Make(TextBox& control) {
  return Bound<LineBinding>(*this, control, new QLineEdit(&window_));
}

QPlainTextEdit* WindowBinder::MakeLines(TextBox& control) {
  return Bound<LinesBinding>(*this, control, new QPlainTextEdit(&window_));
}

QLabel* WindowBinder::Make(Label& control) {
  auto* label = new QLabel(&window_);
  label->setTextFormat(Qt::PlainText);
  return Bound<LabelBinding>(*this, control, label);
}

QLabel* WindowBinder::MakeNaming(Label& control, QWidget& field) {
  QLabel* label = Make(control);
  label->setBuddy(&field);
  field.setAccessibleName(WithoutMnemonic(ToQt(control.Caption())));
  return label;
}

QPushButton* WindowBinder::Make(Command& control) {
  auto* button = Bound<CommandBinding>(*this, control, new MarkedButton(&window_));
  button->setAutoDefault(false);
  button->setDefault(control.ButtonRole() == Command::Role::kDefault);
  return button;
}

QToolButton* WindowBinder::MakeTool(Command& control, const char* icon) {
  auto* button = new QToolButton(&window_);
  button->setAutoRaise(true);
  button->setIcon(IconOf(icon));
  constexpr double kLargerThanText = 1.5;
  const int side = static_cast<int>(kLargerThanText * button->fontMetrics().height());
  button->setIconSize({side, side});
  return Bound<CommandBinding>(*this, control, button);
}

QCheckBox* WindowBinder::Make(CheckBox& control) {
  return Bound<CheckBinding>(*this, control, new QCheckBox(&window_));
}

QRadioButton* WindowBinder::Make(OptionButton& control) {
  return Bound<OptionBinding>(*this, control, new QRadioButton(&window_));
}

QGroupBox* WindowBinder::Make(Frame& control) {
  return Bound<FrameBinding>(*this, control, new QGroupBox(&window_));
}

QListWidget* WindowBinder::Make(ListBox& control) {
  return Bound<ListBoxBinding>(*this, control, new MarkedView<QListWidget>(&window_));
}

QComboBox* WindowBinder::Make(ComboBox& control) {
  return Bound<ComboBinding>(*this, control, new DropDown(&window_));
}

QTreeView* WindowBinder::Make(ListView& control) {
  return Bound<ListViewBinding>(*this, control, new MarkedView<QTreeView>(&window_));
}

QDateEdit* WindowBinder::Make(DatePicker& control) {
  return Bound<PickerBinding>(*this, control, new TypedDateEdit(&window_));
}

QCalendarWidget* WindowBinder::Make(Calendar& control) {
  return Bound<CalendarBinding>(*this, control, new QCalendarWidget(&window_));
}

QProgressBar* WindowBinder::Make(ProgressBar& control) {
  return Bound<ProgressBinding>(*this, control, new QProgressBar(&window_));
}

QTabWidget* WindowBinder::Make(TabStrip& control) {
  return Bound<TabBinding>(*this, control, new QTabWidget(&window_));
}

QWidget* WindowBinder::MakeField(Control& control) {
  if (auto* text = dynamic_cast<TextBox*>(&control)) {
    return text->MultiLine ? static_cast<QWidget*>(MakeLines(*text)) : Make(*text);
  }
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    return Make(*combo);
  }
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    return Make(*list);
  }
  if (auto* picker = dynamic_cast<DatePicker*>(&control)) {
    return Make(*picker);
  }
  if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    return Make(*check);
  }
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    return Make(*option);
  }
  if (auto* command = dynamic_cast<Command*>(&control)) {
    return Make(*command);
  }
  if (auto* label = dynamic_cast<Label*>(&control)) {
    return Make(*label);
  }
  throw RuntimeError(error_number::kInternalError, control.Name() + " is no field.");
}

}  // namespace lorvane

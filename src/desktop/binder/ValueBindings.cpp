#include "desktop/binder/ValueBindings.h"

#include <QEvent>
#include <QTabBar>
#include <QTextCharFormat>

namespace lorvane {
namespace {

constexpr int kPercent = 100;

QDate ToQt(const DateTime& date) { return {date.year, date.month, date.day}; }

DateTime FromQt(const QDate& date) { return {date.year(), date.month(), date.day()}; }

}  // namespace

PickerBinding::PickerBinding(WindowBinder& window, DatePicker& control, QDateEdit& edit)
    : Binding(window, control, edit), control_(control), edit_(edit) {
  edit.setDisplayFormat(QStringLiteral("M/d/yyyy"));
  edit.setCalendarPopup(true);
  connect(&edit, &QDateEdit::dateChanged, this,
          [this](const QDate& date) { Act([this, date] { control_.UserPick(FromQt(date)); }); });
}

void PickerBinding::ShowValue() {
  edit_.clearMinimumDate();
  edit_.clearMaximumDate();
  if (control_.Earliest() && *control_.Earliest() <= control_.Date()) {
    edit_.setMinimumDate(ToQt(*control_.Earliest()));
  }
  if (control_.Latest() && control_.Date().Day() <= *control_.Latest()) {
    edit_.setMaximumDate(ToQt(*control_.Latest()));
  }
  if (edit_.date() != ToQt(control_.Date())) {
    edit_.setDate(ToQt(control_.Date()));
  }
}

CalendarBinding::CalendarBinding(WindowBinder& window, Calendar& control, QCalendarWidget& sheet)
    : Binding(window, control, sheet), control_(control), sheet_(sheet) {
  sheet.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  sheet.setGridVisible(false);
  // The toolkit's red for them is hard to read; the headings of their columns name them.
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
    sheet.setWeekdayTextFormat(day, {});
  }
  for (QWidget* part : sheet.findChildren<QWidget*>()) {
    if (part->focusPolicy() != Qt::NoFocus) {
      Watch(*part);
    }
  }
  const auto pick = [this](const QDate& date) {
    if (!control_.Date() || ToQt(*control_.Date()) != date) {
      Act([this, date] { control_.UserPick(FromQt(date)); });
    }
  };
  connect(&sheet, &QCalendarWidget::clicked, this, pick);
  connect(&sheet, &QCalendarWidget::selectionChanged, this,
          [this, pick] { pick(sheet_.selectedDate()); });
}

void CalendarBinding::ShowValue() {
  if (control_.Date() && sheet_.selectedDate() != ToQt(*control_.Date())) {
    sheet_.setSelectedDate(ToQt(*control_.Date()));
  }
}

ProgressBinding::ProgressBinding(WindowBinder& window, ProgressBar& control, QProgressBar& bar)
    : Binding(window, control, bar), control_(control), bar_(bar) {
  bar.setRange(0, kPercent);
  control.OnPropertyChanged = [this] {
    MarkChanged();
    const auto percent = static_cast<int>(control_.Value() * kPercent / control_.Maximum());
    if (percent != bar_.value()) {
      Flush();
      bar_.repaint();
    }
  };
}

void ProgressBinding::ShowValue() {
  bar_.setValue(static_cast<int>(control_.Value() * kPercent / control_.Maximum()));
}

TabBinding::TabBinding(WindowBinder& window, TabStrip& control, QTabWidget& tabs)
    : Binding(window, control, tabs), control_(control), tabs_(tabs) {
  connect(&tabs, &QTabWidget::currentChanged, this, [this](int tab) {
    // The first page that is put in comes to the front by itself, which is none of the user's
    // doing.
    if (tabs_.isVisible()) {
      Act([this, tab] { control_.UserSelect(tab); });
    }
  });
}

bool TabBinding::eventFilter(QObject* watched, QEvent* event) {
  // A press on the page's ground is no press on the strip.
  if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::ContextMenu) {
    return false;
  }
  return Binding::eventFilter(watched, event);
}

void TabBinding::ShowValue() {
  if (tabs_.currentIndex() != control_.Tab()) {
    tabs_.setCurrentIndex(control_.Tab());
  }
}

}  // namespace lorvane

#pragma once

#include <QCalendarWidget>
#include <QDateEdit>
#include <QProgressBar>
#include <QTabWidget>

#include "desktop/binder/Binding.h"
#include "screen/Dates.h"
#include "screen/ProgressBar.h"
#include "screen/TabStrip.h"

namespace lorvane {

/// A field for a date, with a month's sheet to drop down.
class PickerBinding : public Binding {
 public:
  PickerBinding(WindowBinder& window, DatePicker& control, QDateEdit& edit);

 protected:
  void ShowValue() override;

 private:
  DatePicker& control_;
  QDateEdit& edit_;
};

/// A month's sheet.
class CalendarBinding : public Binding {
 public:
  CalendarBinding(WindowBinder& window, Calendar& control, QCalendarWidget& sheet);

 protected:
  void ShowValue() override;

 private:
  Calendar& control_;
  QCalendarWidget& sheet_;
};

/// How far a long operation has come. It is painted at once: nothing else runs meanwhile.
class ProgressBinding : public Binding {
 public:
  ProgressBinding(WindowBinder& window, ProgressBar& control, QProgressBar& bar);

 protected:
  void ShowValue() override;

 private:
  ProgressBar& control_;
  QProgressBar& bar_;
};

/// The pages of a window.
class TabBinding : public Binding {
 public:
  TabBinding(WindowBinder& window, TabStrip& control, QTabWidget& tabs);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowValue() override;

 private:
  TabStrip& control_;
  QTabWidget& tabs_;
};

}  // namespace lorvane

#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGroupBox>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <algorithm>

#include "WindowRoads.h"
#include "desktop/windows/WindowRegistry.h"
#include "screen/Screen.h"

namespace lorvane {
namespace {

// What a user takes for one thing: the field of a drop-down list is the list.
QWidget* WholeOf(QWidget* part, const QWidget& window) {
  QWidget* whole = part;
  for (QWidget* above = part; above != nullptr && above != &window; above = above->parentWidget()) {
    if (qobject_cast<QAbstractSpinBox*>(above) != nullptr ||
        qobject_cast<QComboBox*>(above) != nullptr ||
        qobject_cast<QCalendarWidget*>(above) != nullptr) {
      whole = above;
    }
  }
  return whole;
}

bool TakesKeys(const QWidget& widget) {
  return widget.isVisible() && widget.isEnabled() && widget.focusProxy() == nullptr &&
         (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// Runs the work with each page of the window in front; once when it has none.
void OnEachPage(QWidget& window, const std::function<void()>& work) {
  auto* pages = window.findChild<QTabWidget*>();
  const int count = pages == nullptr ? 1 : pages->count();
  for (int i = 0; i < count; ++i) {
    if (pages != nullptr) {
      pages->setCurrentIndex(i);
    }
    work();
  }
  if (pages != nullptr) {
    pages->setCurrentIndex(0);
  }
}

// What can have the focus on the page in front, each thing once.
QList<QWidget*> Fields(QWidget& window) {
  QList<QWidget*> fields;
  const Screen* screen = nullptr;
  if (auto* dialog = dynamic_cast<ScreenDialog*>(&window)) {
    screen = &dialog->Binder().Model();
  }
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const Control* control =
        screen == nullptr ? nullptr : screen->Find(widget->objectName().toStdString());
    if (control != nullptr && !control->TabStop()) {
      continue;
    }
    QWidget* whole = WholeOf(widget, window);
    if (TakesKeys(*widget) && !fields.contains(whole)) {
      fields.append(whole);
    }
  }
  return fields;
}

std::string Told(const QWidget& widget) {
  return widget.metaObject()->className() + (" " + widget.objectName().toStdString());
}

// Where the Tab key leads from where the focus stands, until it comes back.
QList<QWidget*> WalkByTab(QWidget& window) {
  constexpr int kMost = 200;
  QList<QWidget*> walked;
  for (int i = 0; i < kMost && window.focusWidget() != nullptr; ++i) {
    QWidget* whole = WholeOf(window.focusWidget(), window);
    if (i > 0 && whole == walked.front()) {
      return walked;
    }
    walked.append(whole);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  ADD_FAILURE() << "the Tab key doesn't come back to where it began";
  return walked;
}

bool IsReached(const QWidget& field, const QList<QWidget*>& walked) {
  return std::any_of(walked.begin(), walked.end(), [&](const QWidget* there) {
    return there == &field || there->isAncestorOf(&field);
  });
}

void ExpectEverythingOnTheWay(QWidget& window) {
  QSet<QWidget*> fields;
  OnEachPage(window, [&] {
    for (QWidget* field : Fields(window)) {
      fields.insert(field);
    }
  });
  const QList<QWidget*> walked = WalkByTab(window);
  for (const QWidget* field : fields) {
    EXPECT_TRUE(IsReached(*field, walked)) << "Tab doesn't come to " << Told(*field);
  }
}

// The titles of the groups in which it stands.
QString GroupsOf(const QWidget& field) {
  QString groups;
  for (const QWidget* above = field.parentWidget(); above != nullptr;
       above = above->parentWidget()) {
    if (const auto* group = qobject_cast<const QGroupBox*>(above)) {
      groups += group->title() + QLatin1Char('/');
    }
  }
  return groups;
}

void ExpectNames(QWidget& window) {
  static const QSet<QAccessible::Role> kNothing{QAccessible::NoRole, QAccessible::Client,
                                                QAccessible::Window, QAccessible::Grouping};
  OnEachPage(window, [&] {
    QSet<QString> names;
    for (QWidget* field : Fields(window)) {
      const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(field);
      ASSERT_NE(told, nullptr) << Told(*field);
      const QString name = told->text(QAccessible::Name);
      EXPECT_FALSE(name.trimmed().isEmpty()) << Told(*field) << " has no name";
      EXPECT_NE(name, field->objectName()) << Told(*field) << " has no name";
      EXPECT_FALSE(kNothing.contains(told->role())) << Told(*field) << " says nothing of its kind";
      if (qobject_cast<QTabBar*>(field) != nullptr) {
        continue;
      }
      const QString full = GroupsOf(*field) + name;
      EXPECT_FALSE(names.contains(full))
          << Told(*field) << ": another one is " << full.toStdString();
      names.insert(full);
    }
  });
}

// The field and the edge around it, as they stand on the window.
QImage Seen(QWidget& window, const QWidget& field) {
  constexpr int kEdge = 3;
  const QRect place(field.mapTo(&window, QPoint()), field.size());
  return window.grab(place.adjusted(-kEdge, -kEdge, kEdge, kEdge)).toImage();
}

void ExpectFocusToBeSeen(QWidget& window) {
  const QList<QWidget*> walked = WalkByTab(window);
  if (walked.size() < 2) {
    return;
  }
  for (qsizetype i = 0; i < walked.size(); ++i) {
    const QWidget* field = WholeOf(window.focusWidget(), window);
    const QImage with = Seen(window, *field);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    // The way may lead to another page.
    if (field->isVisible()) {
      EXPECT_NE(Seen(window, *field), with) << "the focus isn't seen on " << Told(*field);
    }
  }
}

void ExpectAccess(QWidget& window) {
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.window()));
  ExpectNames(window);
  ExpectEverythingOnTheWay(window);
  ExpectFocusToBeSeen(window);
}

class Accessibility : public testing::TestWithParam<WindowRoad> {};

TEST_P(Accessibility, IsReachedNamedAndSeen) {
  QApplication::setCursorFlashTime(0);
  DesktopRun run;
  Visit(run, GetParam(), ExpectAccess);
}

TEST(AccessibilityOfTheMainWindow, IsReachedNamedAndSeen) {
  QApplication::setCursorFlashTime(0);
  DesktopRun run;
  ExpectAccess(run.Main());
  run.OpenCompany();
  ExpectAccess(run.Main());
}

INSTANTIATE_TEST_SUITE_P(Windows, Accessibility, testing::ValuesIn(WindowRoads()),
                         [](const testing::TestParamInfo<WindowRoad>& road) {
                           return road.param.window + road.param.face;
                         });

// A window that comes new is walked to, too.
TEST(AccessibilityRoads, LeadToEveryWindow) {
  std::vector<std::string> names;
  for (const WindowRoad& road : WindowRoads()) {
    names.push_back(road.window);
  }
  for (const std::string& window : AllWindows().Names()) {
    EXPECT_NE(std::find(names.begin(), names.end(), window), names.end()) << window;
  }
}

}  // namespace
}  // namespace lorvane

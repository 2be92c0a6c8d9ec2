#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QSet>

#include "DesktopRun.h"
#include "desktop/windows/WindowRegistry.h"
#include "screen/Menu.h"
#include "shell/modLorvane.h"

namespace lorvane {
namespace {

void ExpectNoClash(const QString& caption, QSet<QString>& used) {
  const QString letter = QKeySequence::mnemonic(caption).toString();
  if (!letter.isEmpty()) {
    EXPECT_FALSE(used.contains(letter)) << caption.toStdString() << " has " << letter.toStdString();
    used.insert(letter);
  }
}

// Every control has its widget, under its own name; whoever can't see the window is told what each
// field is; and no key leads to two places.
TEST(Windows, HaveAWidgetForEveryControl) {
  DesktopRun run;
  const WindowRegistry windows = AllWindows();
  const ScreenRegistry screens = AllScreens();
  for (const std::string& name : screens.Names()) {
    if (name == "frmMain" || name == "frmSplash") {
      continue;
    }
    SCOPED_TRACE(name);
    const std::unique_ptr<Screen> screen = screens.Make(name, run.Program().Context());
    const std::unique_ptr<ScreenDialog> window =
        windows.Make(*screen, run.Program().Gate(), nullptr);
    for (const Control* control : screen->Controls()) {
      SCOPED_TRACE(control->Name());
      const QString object = QString::fromStdString(control->Name());
      const auto* entry = dynamic_cast<const MenuEntry*>(control);
      if (entry != nullptr) {
        EXPECT_TRUE(entry->IsPopUp() || window->Binder().ActionOf(*entry) != nullptr);
        continue;
      }
      const QList<QWidget*> widgets = window->findChildren<QWidget*>(object);
      ASSERT_EQ(widgets.size(), 1);
      EXPECT_TRUE(!control->TakesFocus() || !widgets.front()->accessibleName().isEmpty());
    }
    QSet<QString> used;
    if (const auto* bar = window->findChild<QMenuBar*>()) {
      for (const QAction* menu : bar->actions()) {
        ExpectNoClash(menu->text(), used);
      }
    }
    for (const QLabel* label : window->findChildren<QLabel*>()) {
      if (label->buddy() != nullptr) {
        ExpectNoClash(label->text(), used);
      }
    }
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      ExpectNoClash(button->text(), used);
    }
  }
}

}  // namespace
}  // namespace lorvane

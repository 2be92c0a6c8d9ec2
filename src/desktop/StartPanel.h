#pragma once

#include <QFrame>
#include <vector>

class QGridLayout;
class QLabel;
class QToolButton;

namespace lorvane {

class MenuEntry;
class WindowBinder;

/// What the main window shows where no other window is: the open company, and large buttons for the
/// commands of the menu that are wanted most. A command that can't be used has no button.
class StartPanel : public QFrame {
 public:
  StartPanel(WindowBinder& binder, QWidget* parent);

  /// Follows the menu.
  void Refresh(const QString& title);

 private:
  struct Shortcut {
    const MenuEntry* entry;
    QToolButton* button;
  };

  QLabel* title_;
  QGridLayout* rows_;
  std::vector<Shortcut> shortcuts_;
};

}  // namespace lorvane

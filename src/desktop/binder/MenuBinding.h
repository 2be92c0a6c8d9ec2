#pragma once

#include <QAction>
#include <QObject>

#include "screen/Menu.h"

namespace lorvane {

class WindowBinder;

/// Ties a menu entry to its action, which belongs to a menu of the window.
class MenuBinding : public QObject {
 public:
  MenuBinding(WindowBinder& window, MenuEntry& entry, QAction& action);

  [[nodiscard]] const MenuEntry& Model() const { return entry_; }
  [[nodiscard]] QAction& Action() const { return action_; }
  /// Brings the action up to date when its entry has changed.
  void Flush();
  /// The window's binder goes before its actions do.
  void Detach();

 private:
  MenuEntry& entry_;
  QAction& action_;
  bool changed_ = true;
};

}  // namespace lorvane

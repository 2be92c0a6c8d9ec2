#pragma once

#include <QFrame>
#include <functional>
#include <vector>

#include "screen/ScreenContext.h"

class QAction;
class QGridLayout;
class QLabel;
class QScrollArea;
class QToolButton;

namespace lorvane {

class GlanceView;
class MenuEntry;
class WindowBinder;

/// What the main window shows where no other window is. With no company open: the ways to one, and
/// the manual. With one open: large buttons for the commands of the menu that are wanted most, and
/// the company's year. A command that can't be used has no button.
class StartPanel : public QFrame {
 public:
  StartPanel(WindowBinder& binder, ScreenContext context, QWidget* parent);

  /// Asked to open the sample company.
  std::function<void()> OnOpenSample;

  /// Follows the menu.
  void Refresh(const QString& title);
  /// Whether a company, or an archive, is open and can be worked with.
  [[nodiscard]] bool HasCompany() const;
  /// Reads the year anew from the open company's tables.
  void RefreshYear();
  /// The size that shows everything.
  [[nodiscard]] QSize sizeHint() const override;

 private:
  struct Shortcut {
    /// Null for what is no entry of the menu.
    const MenuEntry* entry;
    QToolButton* button;
    bool withCompany;
    bool withoutCompany;
  };

  void MakeButtons();
  void MakeView();
  void AddButton(const MenuEntry* entry, QToolButton* button, bool withCompany,
                 bool withoutCompany);
  [[nodiscard]] const MenuEntry* EntryOf(const char* name) const;
  void OpenWindow(const char* name) const;
  void SavePicture(const QImage& picture, const QString& name) const;

  WindowBinder& binder_;
  ScreenContext context_;
  QLabel* title_;
  QGridLayout* rows_;
  std::vector<Shortcut> shortcuts_;
  GlanceView* glance_ = nullptr;
  QScrollArea* scroll_ = nullptr;
};

}  // namespace lorvane

#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <functional>

#include "desktop/binder/WindowBinder.h"
#include "screen/ScreenContext.h"
#include "screen/ScreenServices.h"
#include "shell/frmMain.h"

class QLabel;
class QMdiSubWindow;

namespace lorvane {

class ScreenDialog;
class StartPanel;

/// The main window: the menu, the status bar, and the ground on which the windows that aren't modal
/// stand.
class MainWindow : public QMainWindow {
 public:
  MainWindow(frmMain& screen, ScreenGate& gate, ScreenContext context);
  ~MainWindow() override;

  /// Gives a window a place of its own on the ground.
  void Adopt(ScreenDialog& window);
  void BringToFront(ScreenDialog& window);
  void Release(ScreenDialog& window);
  void Arrange(WindowArrangement arrangement);
  /// A window or box was closed: the year on the ground is read anew as soon as none is left.
  void TellClosed() { yearIsOld_ = true; }
  /// Asked to open the sample company.
  std::function<void()> OnOpenSample;
  /// Paints the status bar at once.
  void PaintStatus();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ListWindows();
  void MakeStatusBar();
  void Refresh();
  void RefreshYear();
  void ShowStatus();
  void PlacePanel();
  void Tile(Qt::Orientation orientation);
  [[nodiscard]] QMdiSubWindow* PlaceOf(const ScreenDialog& window) const;

  frmMain& screen_;
  ScreenContext context_;
  WindowBinder binder_;
  QMdiArea* ground_;
  /// The entries of the Window menu for the windows on the ground.
  QList<QAction*> listed_;
  StartPanel* panel_ = nullptr;
  /// The company whose year is shown; empty when none is.
  std::string shownFile_;
  bool yearIsOld_ = true;
  QLabel* message_ = nullptr;
  QLabel* assessment_ = nullptr;
  QLabel* form_ = nullptr;
};

}  // namespace lorvane

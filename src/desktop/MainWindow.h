#pragma once

#include <QMainWindow>
#include <QMdiArea>

#include "desktop/binder/WindowBinder.h"
#include "screen/ScreenServices.h"
#include "shell/frmMain.h"

class QLabel;
class QMdiSubWindow;

namespace lorvane {

class ScreenDialog;
class StartPanel;
struct StatusPanels;

/// The main window: the menu, the status bar, and the ground on which the windows that aren't modal
/// stand.
class MainWindow : public QMainWindow {
 public:
  MainWindow(frmMain& screen, ScreenGate& gate, StatusPanels& status);
  ~MainWindow() override;

  /// Gives a window a place of its own on the ground.
  void Adopt(ScreenDialog& window);
  void BringToFront(ScreenDialog& window);
  void Release(ScreenDialog& window);
  void Arrange(WindowArrangement arrangement);
  /// Paints the status bar at once.
  void PaintStatus();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ListWindows();
  void MakeStatusBar();
  void Refresh();
  void ShowStatus();
  void PlacePanel();
  void Tile(Qt::Orientation orientation);
  [[nodiscard]] QMdiSubWindow* PlaceOf(const ScreenDialog& window) const;

  frmMain& screen_;
  StatusPanels& status_;
  WindowBinder binder_;
  QMdiArea* ground_;
  /// The entries of the Window menu for the windows on the ground.
  QList<QAction*> listed_;
  StartPanel* panel_ = nullptr;
  QLabel* message_ = nullptr;
  QLabel* assessment_ = nullptr;
  QLabel* form_ = nullptr;
};

}  // namespace lorvane

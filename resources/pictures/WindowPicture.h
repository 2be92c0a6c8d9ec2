#pragma once

#include <QImage>
#include <QString>

#include "desktop/windows/WindowRegistry.h"
#include "screen/ScreenContext.h"

namespace lorvane {

class ReportViewer;
class Screen;
class ScreenGate;

/// Draws windows as they stand on a desktop, with a plain title bar. Needs a QApplication.
class WindowPictures {
 public:
  /// Of a picture in pixels. A window too broad for it is drawn less sharply.
  static constexpr int kWidest = 1400;

  /// `gate` outlives it.
  explicit WindowPictures(ScreenGate& gate);

  /// Paths in this folder are shown as if it stood at home, wherever it is.
  void ShowAsHome(const QString& folder) { folder_ = folder; }

  /// The window of a screen in its present state, made for the picture and gone afterwards.
  [[nodiscard]] QImage OfScreen(Screen& screen, ScreenContext context) const;
  /// The manual's window with the pages of a folder.
  [[nodiscard]] static QImage OfManual(const QString& folder);
  /// A page of the report shown, from 1. Raises 9 when there is no such page.
  [[nodiscard]] static QImage OfPage(const ReportViewer& viewer, int page);

 private:
  void ShowPathsAsHome(QWidget& window) const;

  ScreenGate& gate_;
  QString folder_;
  WindowRegistry windows_;
};

}  // namespace lorvane

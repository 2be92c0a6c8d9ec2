#include "WindowPicture.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <cmath>

#include "basic/RuntimeError.h"
#include "desktop/HelpWindow.h"
#include "desktop/MainWindow.h"
#include "desktop/SplashWindow.h"
#include "print/PagePainter.h"
#include "reports/ReportViewer.h"

namespace lorvane {
namespace {

// The main window and the manual are as large as one likes: small enough to be read in a picture.
constexpr QSize kMainWindow(930, 700);
constexpr QSize kLargeWindow(880, 560);
constexpr int kEdge = 1;

// As sharp as the screen is, but for a broad window, which is drawn pixel by pixel.
QImage Plain(QWidget& window) {
  window.activateWindow();
  QApplication::processEvents();
  const double scale = window.devicePixelRatioF();
  const bool broad = (window.width() + 2 * kEdge) * scale > WindowPictures::kWidest;
  QImage picture(broad ? window.size() : window.size() * scale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(broad ? 1 : scale);
  window.render(&picture);
  return picture;
}

// The window with a title bar and an edge, both in its own resolution.
QImage Framed(QWidget& window) {
  const QImage inside = Plain(window);
  const double scale = inside.devicePixelRatio();
  QFont font = QApplication::font();
  font.setBold(true);
  const QFontMetrics metrics(font);
  const int bar = metrics.lineSpacing() + metrics.lineSpacing() / 2;
  const int width = window.width() + 2 * kEdge;
  const int height = window.height() + bar + kEdge;
  QImage picture(QSize(static_cast<int>(std::lround(width * scale)),
                       static_cast<int>(std::lround(height * scale))),
                 QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale);
  const QPalette palette = QApplication::palette();
  picture.fill(palette.color(QPalette::Window).darker(160));
  QPainter painter(&picture);
  const QRect title(kEdge, kEdge, width - 2 * kEdge, bar - kEdge);
  painter.fillRect(title, palette.color(QPalette::Window).darker(112));
  painter.setFont(font);
  painter.setPen(palette.color(QPalette::WindowText));
  painter.drawText(title, Qt::AlignCenter, window.windowTitle());
  painter.drawImage(kEdge, bar, inside);
  return picture;
}

}  // namespace

WindowPictures::WindowPictures(ScreenGate& gate) : gate_(gate), windows_(AllWindows()) {}

QImage WindowPictures::OfScreen(Screen& screen, ScreenContext context) const {
  if (auto* main = dynamic_cast<frmMain*>(&screen)) {
    MainWindow window(*main, gate_, context);
    window.resize(kMainWindow);
    window.show();
    return Framed(window);
  }
  if (auto* splash = dynamic_cast<frmSplash*>(&screen)) {
    SplashWindow window(*splash, gate_);
    window.show();
    return Plain(window);
  }
  const std::unique_ptr<ScreenDialog> window = windows_.Make(screen, gate_, nullptr);
  window->Present();
  ShowPathsAsHome(*window);
  return Framed(*window);
}

void WindowPictures::ShowPathsAsHome(QWidget& window) const {
  for (QLineEdit* edit : window.findChildren<QLineEdit*>()) {
    if (!folder_.isEmpty() && edit->text().startsWith(folder_)) {
      const QSignalBlocker quiet(edit);
      edit->setText(QStringLiteral("/home/bridget/Lorvane") + edit->text().mid(folder_.size()));
      edit->setCursorPosition(0);
    }
  }
}

QImage WindowPictures::OfManual(const QString& folder) {
  HelpWindow window(folder);
  window.resize(kLargeWindow);
  window.show();
  return Framed(window);
}

QImage WindowPictures::OfPage(const ReportViewer& viewer, int page) {
  constexpr double kPixelsPerPoint = 1.5;
  constexpr QRgb kPaperEdge = 0xFF808080;
  const PagedReport& report = viewer.Pages();
  if (page < 1 || page > viewer.PageCount()) {
    throw RuntimeError(error_number::kSubscriptOutOfRange);
  }
  const PageFonts fonts;
  QImage picture(static_cast<int>(std::lround(report.width * kPixelsPerPoint)),
                 static_cast<int>(std::lround(report.height * kPixelsPerPoint)),
                 QImage::Format_RGB32);
  picture.fill(Qt::white);
  picture.setDevicePixelRatio(1);
  QPainter painter(&picture);
  painter.setPen(QColor(kPaperEdge));
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.scale(kPixelsPerPoint / PageFonts::kUnitsPerPoint,
                kPixelsPerPoint / PageFonts::kUnitsPerPoint);
  PagePainter(report, fonts).Paint(painter, static_cast<std::size_t>(page - 1));
  return picture;
}

}  // namespace lorvane

// The main window made, shown and painted, with session and screens behind it, and an empty window
// of the toolkit.

#include <QApplication>
#include <QMainWindow>

#include "Comparison.h"
#include "desktop/DesktopProgram.h"

namespace lorvane {
namespace {

double Ours() {
  return SecondsOf([] {
    DesktopProgram program(SystemClock(), [](int) {});
    program.StartWithMainWindow();
    QApplication::processEvents();
  });
}

double Bare() {
  return SecondsOf([] {
    QMainWindow window;
    window.resize(1000, 700);
    window.show();
    QApplication::processEvents();
  });
}

}  // namespace
}  // namespace lorvane

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return lorvane::RunComparison(argc, argv,
                                {"showing the main window", lorvane::Ours, lorvane::Bare});
}

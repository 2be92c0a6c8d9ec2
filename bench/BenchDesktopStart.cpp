// The main window made, shown and painted, with session and screens behind it, and a window of the
// toolkit with as many menus, buttons and labels that do nothing.

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeWidget>

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

void FillMenuBar(QMenuBar& bar) {
  constexpr int kMenus = 5;
  constexpr int kEntries = 9;
  for (int menu = 0; menu < kMenus; ++menu) {
    QMenu* entries = bar.addMenu(QStringLiteral("Menu %1").arg(menu));
    for (int entry = 0; entry < kEntries; ++entry) {
      entries->addAction(QStringLiteral("Entry %1").arg(entry));
    }
  }
}

QWidget* MakePanel(QWidget* parent) {
  auto* panel = new QFrame(parent);
  auto* layout = new QGridLayout(panel);
  layout->addWidget(new QLabel(QStringLiteral("No company"), panel), 0, 0);
  int column = 0;
  for (const char* icon : {"new-company", "open-company", "folder", "help"}) {
    auto* button = new QToolButton(panel);
    button->setText(QString::fromLatin1(icon));
    button->setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(icon))));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    layout->addWidget(button, 1, column++);
  }
  auto* list = new QTreeWidget(panel);
  list->setHeaderLabels({QStringLiteral("Industry"), QStringLiteral("Amount")});
  layout->addWidget(list, 2, 0);
  layout->addWidget(new QListWidget(panel), 2, 1);
  return panel;
}

double Bare() {
  return SecondsOf([] {
    QMainWindow window;
    auto* ground = new QMdiArea(&window);
    window.setCentralWidget(ground);
    FillMenuBar(*window.menuBar());
    for (int panel = 0; panel < 3; ++panel) {
      window.statusBar()->addWidget(new QLabel(QStringLiteral("Status"), &window));
    }
    MakePanel(ground->viewport())->move(100, 100);
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

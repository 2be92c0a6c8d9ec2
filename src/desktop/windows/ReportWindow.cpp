#include "desktop/windows/ReportWindow.h"

#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/windows/ReportView.h"

namespace lorvane {

ReportWindow::ReportWindow(ReportScreen& screen, ScreenGate& gate, QWidget* parent)
    : ScreenDialog(screen, gate, parent) {
  auto* view = new ReportView;
  new ReportViewBinding(binder_, screen.CRViewer1, *view);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view);
  auto* close = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(close, &QShortcut::activated, this, [this] { binder_.CloseScreen(); });
}

}  // namespace lorvane

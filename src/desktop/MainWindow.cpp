#include "desktop/MainWindow.h"

#include <QApplication>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "desktop/StartPanel.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenDialog.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

QLabel* Panel(QStatusBar& bar, const char* name, const QString& said, int stretch) {
  auto* panel = new QLabel(&bar);
  panel->setObjectName(QLatin1String(name));
  panel->setAccessibleName(said);
  panel->setTextFormat(Qt::PlainText);
  if (stretch > 0) {
    bar.addWidget(panel, stretch);
  } else {
    bar.addPermanentWidget(panel);
  }
  return panel;
}

}  // namespace

MainWindow::MainWindow(frmMain& screen, ScreenGate& gate, ScreenContext context)
    : screen_(screen),
      context_(context),
      binder_(screen, gate, *this),
      ground_(new QMdiArea(this)) {
  constexpr int kWidth = 170;
  constexpr int kHeight = 48;
  ground_->setObjectName(QStringLiteral("ground"));
  setCentralWidget(ground_);
  binder_.MakeMenus(*menuBar());
  MakeStatusBar();
  ListWindows();
  binder_.Finish();
  panel_ = new StartPanel(binder_, context, ground_->viewport());
  panel_->OnOpenSample = [this] {
    if (OnOpenSample) {
      OnOpenSample();
    }
  };
  binder_.OnRefresh = [this] { Refresh(); };
  context_.session.status.OnChanged = [this] { ShowStatus(); };
  const QSize wanted(kWidth * fontMetrics().averageCharWidth(),
                     kHeight * fontMetrics().lineSpacing());
  resize(wanted.boundedTo(QWidget::screen()->availableSize()));
  ShowStatus();
  Refresh();
}

MainWindow::~MainWindow() { context_.session.status.OnChanged = nullptr; }

// The Window menu ends with the windows that stand on the ground.
void MainWindow::ListWindows() {
  auto* menu = findChild<QMenu*>(QStringLiteral("mnuWindow"));
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    qDeleteAll(listed_);
    listed_.clear();
    for (QMdiSubWindow* place : ground_->subWindowList()) {
      if (listed_.empty()) {
        listed_.append(menu->addSeparator());
      }
      QAction* action = menu->addAction(place->windowTitle());
      connect(action, &QAction::triggered, place,
              [this, place] { ground_->setActiveSubWindow(place); });
      listed_.append(action);
    }
  });
}

void MainWindow::MakeStatusBar() {
  QStatusBar& bar = *statusBar();
  bar.setObjectName(QStringLiteral("sbrMain"));
  message_ = Panel(bar, "sbrMain_Msg", tr("Message"), 1);
  assessment_ = Panel(bar, "sbrMain_Assessment", tr("Kind of payee"), 0);
  form_ = Panel(bar, "sbrMain_Form", tr("Window"), 0);
}

void MainWindow::Refresh() {
  const QString title = ToQt(screen_.Caption());
  if (windowTitle() != title || panel_->property("ground") != screen_.BackColour().value_or(-1)) {
    setWindowTitle(title);
    constexpr int kDarker = 112;
    const std::optional<int> colour = screen_.BackColour();
    panel_->setProperty("ground", colour.value_or(-1));
    ground_->setBackground(colour ? QColor::fromRgb(static_cast<QRgb>(*colour))
                                  : palette().color(QPalette::Window).darker(kDarker));
  }
  // The company's name stands behind these words in every title, or that none is open behind the
  // program's name.
  const QString before = QStringLiteral("for: ");
  const qsizetype name = title.indexOf(before);
  const QString open =
      name < 0 ? title.mid(ToQt(MainTitle()).size()).trimmed() : title.mid(name + before.size());
  panel_->Refresh(open);
  RefreshYear();
  PlacePanel();
}

void MainWindow::RefreshYear() {
  // Not in the middle of work on the tables.
  if (QApplication::activeModalWidget() != nullptr ||
      context_.services.Pointer() == pointer::kHourglass) {
    return;
  }
  const std::string file =
      panel_->HasCompany() ? context_.session.gDataConn->DataSource : std::string();
  if (!file.empty() && (yearIsOld_ || file != shownFile_)) {
    panel_->RefreshYear();
    yearIsOld_ = false;
  }
  shownFile_ = file;
}

void MainWindow::ShowStatus() {
  const StatusPanels& status = context_.session.status;
  message_->setText(ToQt(status.Msg));
  assessment_->setText(ToQt(status.Assessment));
  form_->setText(ToQt(status.Form));
}

void MainWindow::PaintStatus() {
  ShowStatus();
  statusBar()->repaint();
}

void MainWindow::PlacePanel() {
  const QSize room = ground_->viewport()->size();
  panel_->resize(panel_->sizeHint().boundedTo(room));
  panel_->move(std::max(0, (room.width() - panel_->width()) / 2),
               std::max(0, (room.height() - panel_->height()) / 2));
  const QPoint inner = ground_->mapTo(this, QPoint());
  screen_.Place = {inner.x(), inner.y(), room.width(), room.height()};
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  PlacePanel();
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  PlacePanel();
}

QMdiSubWindow* MainWindow::PlaceOf(const ScreenDialog& window) const {
  for (QMdiSubWindow* place : ground_->subWindowList()) {
    if (place->widget() == &window) {
      return place;
    }
  }
  return nullptr;
}

void MainWindow::Adopt(ScreenDialog& window) {
  QMdiSubWindow* place = ground_->addSubWindow(&window);
  place->setAttribute(Qt::WA_DeleteOnClose, false);
  place->setWindowIcon(windowIcon());
  window.Present();
  place->show();
}

void MainWindow::BringToFront(ScreenDialog& window) {
  if (QMdiSubWindow* place = PlaceOf(window)) {
    place->showNormal();
    ground_->setActiveSubWindow(place);
  }
}

void MainWindow::Release(ScreenDialog& window) {
  if (QMdiSubWindow* place = PlaceOf(window)) {
    window.hide();
    place->setWidget(nullptr);
    window.setParent(nullptr);
    ground_->removeSubWindow(place);
    place->deleteLater();
  }
}

void MainWindow::Arrange(WindowArrangement arrangement) {
  switch (arrangement) {
    case WindowArrangement::kCascade:
      ground_->cascadeSubWindows();
      break;
    case WindowArrangement::kHorizontal:
      Tile(Qt::Horizontal);
      break;
    case WindowArrangement::kVertical:
      Tile(Qt::Vertical);
      break;
    case WindowArrangement::kIcons: {
      // Those that are icons stand in a row at the bottom.
      int left = 0;
      for (QMdiSubWindow* place : ground_->subWindowList()) {
        if (place->isMinimized()) {
          place->move(left, ground_->viewport()->height() - place->height());
          left += place->width();
        }
      }
      break;
    }
  }
}

// Horizontal tiles lie one above the other, vertical ones side by side.
void MainWindow::Tile(Qt::Orientation orientation) {
  std::vector<QMdiSubWindow*> places;
  for (QMdiSubWindow* place : ground_->subWindowList()) {
    if (!place->isMinimized() && place->isVisible()) {
      places.push_back(place);
    }
  }
  const QSize room = ground_->viewport()->size();
  const int count = static_cast<int>(places.size());
  for (int i = 0; i < count; ++i) {
    QMdiSubWindow& place = *places[static_cast<std::size_t>(i)];
    place.showNormal();
    if (orientation == Qt::Horizontal) {
      place.setGeometry(0, room.height() * i / count, room.width(), room.height() / count);
    } else {
      place.setGeometry(room.width() * i / count, 0, room.width() / count, room.height());
    }
  }
}

}  // namespace lorvane

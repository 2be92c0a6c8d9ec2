#include "desktop/windows/ReportView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/binder/Icons.h"
#include "desktop/binder/QtText.h"
#include "desktop/binder/ScreenGate.h"
#include "desktop/binder/WindowBinder.h"
#include "desktop/windows/ReportPages.h"

namespace lorvane {
namespace {

constexpr int kZoomStep = 25;
constexpr int kSearchWidth = 24;

}  // namespace

ReportView::ReportView() : pages_(new ReportPages) {
  setAccessibleName(tr("Report"));
  setFocusProxy(pages_);
  auto* strip = new QHBoxLayout;
  strip->setContentsMargins(0, 0, 0, 0);
  strip->setSpacing(2);
  print_ = AddButton(*strip, {"print", "print", tr("Print"), QKeySequence::Print});
  export_ = AddButton(*strip, {"export", "export", tr("Export"), QKeySequence::Save});
  refresh_ = AddButton(*strip, {"refresh", "refresh", tr("Refresh"), QKeySequence::Refresh});
  AddNavigation(*strip);
  AddZoom(*strip);
  AddSearch(*strip);
  strip->addStretch(1);
  progress_ = new QProgressBar;
  progress_->setObjectName(QStringLiteral("reportProgress"));
  progress_->setAccessibleName(tr("Progress"));
  progress_->setRange(0, ReportViewer::kAllDone);
  progress_->setMaximumWidth(kSearchWidth * fontMetrics().averageCharWidth());
  strip->addWidget(progress_);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(strip);
  layout->addWidget(pages_, 1);
  pages_->OnPageInView = [this](int page) {
    if (OnScrolledTo) {
      OnScrolledTo(page);
    }
  };
}

QToolButton* ReportView::AddTool(QHBoxLayout& strip, const Tool& tool,
                                 const std::function<void()>& action) {
  auto* button = new QToolButton;
  button->setObjectName(QStringLiteral("report.%1").arg(QLatin1String(tool.name)));
  button->setIcon(IconOf(tool.icon));
  button->setAutoRaise(true);
  button->setAccessibleName(tool.tip);
  button->setToolTip(
      tool.key.isEmpty()
          ? tool.tip
          : QStringLiteral("%1 (%2)").arg(tool.tip, tool.key.toString(QKeySequence::NativeText)));
  connect(button, &QToolButton::clicked, this, action);
  connect(new QShortcut(tool.key, this), &QShortcut::activated, this, action);
  strip.addWidget(button);
  return button;
}

QToolButton* ReportView::AddButton(QHBoxLayout& strip, const Tool& tool) {
  return AddTool(strip, tool, [this, name = tool.name] { OnPress(name); });
}

QSpinBox* ReportView::AddNumber(QHBoxLayout& strip, const QString& name, const QString& tip) {
  auto* box = new QSpinBox;
  box->setObjectName(name);
  box->setAccessibleName(tip);
  box->setToolTip(tip);
  box->setKeyboardTracking(false);
  box->setAlignment(Qt::AlignRight);
  strip.addWidget(box);
  return box;
}

void ReportView::AddNavigation(QHBoxLayout& strip) {
  strip.addSpacing(2 * fontMetrics().averageCharWidth());
  navigation_.push_back(AddButton(strip, {"first", "first", tr("First page"), tr("Ctrl+Home")}));
  navigation_.push_back(
      AddButton(strip, {"previous", "previous", tr("Previous page"), tr("Ctrl+PgUp")}));
  page_ = AddNumber(strip, QStringLiteral("reportPage"), tr("Page"));
  connect(page_, &QSpinBox::valueChanged, this, [this](int page) { OnGoTo(page); });
  navigation_.push_back(page_);
  navigation_.push_back(AddButton(strip, {"next", "next", tr("Next page"), tr("Ctrl+PgDown")}));
  navigation_.push_back(AddButton(strip, {"last", "last", tr("Last page"), tr("Ctrl+End")}));
}

void ReportView::AddZoom(QHBoxLayout& strip) {
  strip.addSpacing(2 * fontMetrics().averageCharWidth());
  zooming_.push_back(AddTool(strip, {"zoomOut", "zoom-out", tr("Smaller"), QKeySequence::ZoomOut},
                             [this] { zoom_->stepDown(); }));
  zoom_ = AddNumber(strip, QStringLiteral("reportZoom"), tr("Zoom"));
  zoom_->setRange(ReportViewer::kLeastZoom, ReportViewer::kMostZoom);
  zoom_->setSingleStep(kZoomStep);
  zoom_->setSuffix(tr(" %"));
  connect(zoom_, &QSpinBox::valueChanged, this, [this](int percent) { OnZoom(percent); });
  zooming_.push_back(zoom_);
  zooming_.push_back(AddTool(strip, {"zoomIn", "zoom-in", tr("Larger"), QKeySequence::ZoomIn},
                             [this] { zoom_->stepUp(); }));
}

void ReportView::AddSearch(QHBoxLayout& strip) {
  strip.addSpacing(2 * fontMetrics().averageCharWidth());
  wanted_ = new QLineEdit;
  wanted_->setObjectName(QStringLiteral("reportSearch"));
  wanted_->setPlaceholderText(tr("Find in the report"));
  wanted_->setAccessibleName(wanted_->placeholderText());
  wanted_->setToolTip(tr("Find (Ctrl+F), find the next (F3)"));
  wanted_->setClearButtonEnabled(true);
  wanted_->setMinimumWidth(kSearchWidth * fontMetrics().averageCharWidth());
  wanted_->addAction(IconOf("search"), QLineEdit::LeadingPosition);
  notFound_ = new QLabel(tr("Not found"));
  notFound_->setObjectName(QStringLiteral("reportNotFound"));
  notFound_->hide();
  strip.addWidget(wanted_);
  strip.addWidget(notFound_);
  search_ = {wanted_};
  connect(wanted_, &QLineEdit::returnPressed, this, [this] { Search(); });
  connect(wanted_, &QLineEdit::textChanged, notFound_, &QWidget::hide);
  auto* focus = new QShortcut(QKeySequence::Find, this);
  connect(focus, &QShortcut::activated, wanted_, [this] {
    if (wanted_->isVisible()) {
      wanted_->setFocus();
      wanted_->selectAll();
    }
  });
  auto* again = new QShortcut(QKeySequence(Qt::Key_F3), this);
  connect(again, &QShortcut::activated, this, [this] { Search(); });
}

void ReportView::Search() {
  if (!wanted_->text().isEmpty()) {
    notFound_->setVisible(!OnSearch(wanted_->text()));
  }
}

void ReportView::ShowPart(const Part& part, bool shown) {
  for (QWidget* widget : part) {
    widget->setVisible(shown);
  }
}

void ReportView::Show(const ReportViewer& viewer) {
  const ReportViewer::Buttons& buttons = viewer.ShownButtons();
  ShowPart(navigation_, buttons.navigation);
  ShowPart(search_, buttons.search);
  ShowPart(zooming_, buttons.zoom);
  refresh_->setVisible(buttons.refresh);
  export_->setVisible(buttons.exporting);
  print_->setVisible(buttons.print);
  ShowProgress(viewer);
  const QSignalBlocker quietPage(page_);
  const QSignalBlocker quietZoom(zoom_);
  if (viewer.Showing() != showing_) {
    showing_ = viewer.Showing();
    pages_->SetReport(viewer.Pages());
    page_->setRange(1, viewer.PageCount());
    page_->setSuffix(tr(" of %1").arg(viewer.PageCount()));
  }
  zoom_->setValue(viewer.Zoom());
  pages_->SetZoom(viewer.Zoom());
  page_->setValue(viewer.Page());
  pages_->ShowPage(viewer.Page());
  pages_->Mark(viewer.FoundText());
}

bool ReportView::ShowProgress(const ReportViewer& viewer) {
  progress_->setVisible(viewer.ShownButtons().progress && viewer.WorkDone() > 0);
  const bool other = progress_->value() != viewer.WorkDone();
  progress_->setValue(viewer.WorkDone());
  return other;
}

ReportViewBinding::ReportViewBinding(WindowBinder& window, ReportViewer& viewer, ReportView& view)
    : Binding(window, viewer, view), viewer_(viewer), view_(view) {
  view.OnPress = [this](const char* button) { Act([&] { viewer_.UserPress(button); }); };
  view.OnGoTo = [this](int page) { Act([&] { viewer_.UserGoTo(page); }); };
  view.OnScrolledTo = [this](int page) { Act([&] { viewer_.UserScrollTo(page); }); };
  view.OnZoom = [this](int percent) { Act([&] { viewer_.UserZoom(percent); }); };
  view.OnSearch = [this](const QString& text) {
    bool found = false;
    Act([&] { found = viewer_.UserSearch(FromQt(text)); });
    return found;
  };
  viewer.OnPropertyChanged = [this] {
    MarkChanged();
    if (view_.ShowProgress(viewer_)) {
      // Nothing else runs until the work is done.
      view_.repaint();
    }
  };
}

void ReportViewBinding::ShowValue() { view_.Show(viewer_); }

}  // namespace lorvane

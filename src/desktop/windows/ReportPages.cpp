#include "desktop/windows/ReportPages.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/binder/QtText.h"

namespace lorvane {
namespace {

constexpr int kGap = 12;
constexpr double kPointsPerInch = 72;
// The part of a page's height that is wanted in view at once.
constexpr double kSeenAtOnce = 0.6;

// What a screen reader is told of the pages: which one is in view, and what stands there.
class PagesTold : public QAccessibleWidget {
 public:
  explicit PagesTold(ReportPages& pages)
      : QAccessibleWidget(&pages, QAccessible::Document), pages_(pages) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    switch (kind) {
      case QAccessible::Name:
        return ReportPages::tr("Report, page %1 of %2")
            .arg(pages_.PageInView())
            .arg(pages_.PageCount());
      case QAccessible::Value:
        return pages_.TextInView();
      default:
        return QAccessibleWidget::text(kind);
    }
  }

 private:
  ReportPages& pages_;
};

QAccessibleInterface* TellOf(const QString& /*kind*/, QObject* object) {
  auto* pages = dynamic_cast<ReportPages*>(object);
  return pages == nullptr ? nullptr : new PagesTold(*pages);
}

}  // namespace

ReportPages::ReportPages() {
  viewport()->setBackgroundRole(QPalette::Dark);
  viewport()->setAutoFillBackground(true);
  setFrameShape(QFrame::NoFrame);
  static const bool kTold = [] {
    QAccessible::installFactory(TellOf);
    return true;
  }();
  Q_UNUSED(kTold)
}

// The page in view as text, a line for each row.
QString ReportPages::TextInView() const {
  QString text;
  const int page = PageInView();
  if (page > PageCount()) {
    return text;
  }
  double line = -1;
  for (const PlacedText& placed : report_->pages[static_cast<std::size_t>(page - 1)].texts) {
    if (!text.isEmpty()) {
      text += QLatin1Char(std::exchange(line, placed.y) == placed.y ? ' ' : '\n');
    }
    line = placed.y;
    text += ToQt(placed.text);
  }
  return text;
}

QSize ReportPages::sizeHint() const {
  if (report_ == nullptr) {
    return QAbstractScrollArea::sizeHint();
  }
  return {
      static_cast<int>(report_->width * PixelsPerPoint()) + 2 * kGap +
          verticalScrollBar()->sizeHint().width(),
      static_cast<int>(std::max(report_->height, report_->width) * PixelsPerPoint() * kSeenAtOnce)};
}

double ReportPages::PixelsPerPoint() const {
  return logicalDpiY() / kPointsPerInch * zoom_ / ReportViewer::kNaturalZoom;
}

int ReportPages::PageCount() const {
  return report_ == nullptr ? 0 : static_cast<int>(report_->pages.size());
}

double ReportPages::PageStep() const { return report_->height * PixelsPerPoint() + kGap; }

double ReportPages::TopOf(int page) const { return kGap + page * PageStep(); }

void ReportPages::SetReport(const PagedReport& report) {
  report_ = &report;
  painter_ = std::make_unique<PagePainter>(report, fonts_);
  match_.reset();
  page_ = 1;
  updateGeometry();
  UpdateBars();
  verticalScrollBar()->setValue(0);
  viewport()->update();
}

void ReportPages::SetZoom(int percent) {
  if (percent == zoom_) {
    return;
  }
  const double factor = static_cast<double>(percent) / std::exchange(zoom_, percent);
  QScrollBar& bar = *verticalScrollBar();
  const double middle = (bar.value() + viewport()->height() / 2.0) * factor;
  UpdateBars();
  bar.setValue(static_cast<int>(middle - viewport()->height() / 2.0));
  viewport()->update();
}

void ReportPages::ShowPage(int page) {
  if (page != page_) {
    page_ = page;
    verticalScrollBar()->setValue(static_cast<int>(TopOf(page - 1)) - kGap);
  }
}

void ReportPages::Mark(const std::optional<ReportViewer::Match>& match) {
  match_ = match;
  viewport()->update();
  if (!match) {
    return;
  }
  const PlacedText& text =
      report_->pages[static_cast<std::size_t>(match->page - 1)].texts[match->text];
  const double place = TopOf(match->page - 1) + text.y * PixelsPerPoint();
  QScrollBar& bar = *verticalScrollBar();
  const int height = viewport()->height();
  if (place < bar.value() + kGap || place > bar.value() + height - 3 * kGap) {
    bar.setValue(static_cast<int>(place) - height / 3);
  }
}

int ReportPages::PageInView() const {
  if (report_ == nullptr) {
    return 1;
  }
  const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
  return std::clamp(static_cast<int>(std::floor((middle - kGap) / PageStep())) + 1, 1,
                    std::max(1, PageCount()));
}

void ReportPages::UpdateBars() {
  if (report_ == nullptr) {
    return;
  }
  const auto set = [](QScrollBar& bar, double whole, int seen) {
    bar.setRange(0, std::max(0, static_cast<int>(std::ceil(whole)) - seen));
    bar.setPageStep(seen);
    bar.setSingleStep(3 * kGap);
  };
  set(*verticalScrollBar(), TopOf(PageCount()), viewport()->height());
  set(*horizontalScrollBar(), report_->width * PixelsPerPoint(), viewport()->width());
}

void ReportPages::resizeEvent(QResizeEvent* /*event*/) { UpdateBars(); }

void ReportPages::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  const int page = PageInView();
  if (page != page_) {
    page_ = page;
    if (OnPageInView) {
      OnPageInView(page);
    }
  }
}

void ReportPages::keyPressEvent(QKeyEvent* event) {
  QScrollBar& bar = *verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_Home:
      bar.setValue(bar.minimum());
      return;
    case Qt::Key_End:
      bar.setValue(bar.maximum());
      return;
    case Qt::Key_Space:
      bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
      return;
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void ReportPages::PaintPage(QPainter& painter, int page) const {
  constexpr QColor kFound(255, 221, 87);
  const auto index = static_cast<std::size_t>(page);
  painter.fillRect(QRectF(0, 0, report_->width * PageFonts::kUnitsPerPoint,
                          report_->height * PageFonts::kUnitsPerPoint),
                   Qt::white);
  if (match_ && match_->page == page + 1) {
    painter_->Mark(painter, index, match_->text, kFound);
  }
  painter_->Paint(painter, index);
}

void ReportPages::paintEvent(QPaintEvent* /*event*/) {
  if (report_ == nullptr) {
    return;
  }
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::TextAntialiasing);
  const double scale = PixelsPerPoint();
  const double width = report_->width * scale;
  const double left =
      std::max(0.0, (viewport()->width() - width) / 2) - horizontalScrollBar()->value();
  const double offset = verticalScrollBar()->value();
  const int first = std::max(0, static_cast<int>((offset - kGap) / PageStep()));
  for (int page = first; page < PageCount() && TopOf(page) < offset + viewport()->height();
       ++page) {
    painter.save();
    painter.translate(std::round(left), std::round(TopOf(page) - offset));
    painter.scale(scale / PageFonts::kUnitsPerPoint, scale / PageFonts::kUnitsPerPoint);
    PaintPage(painter, page);
    painter.restore();
  }
  if (hasFocus()) {
    constexpr int kEdge = 2;
    painter.setPen(QPen(palette().color(QPalette::Highlight), kEdge));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

void ReportPages::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void ReportPages::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

}  // namespace lorvane

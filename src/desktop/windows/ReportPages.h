#pragma once

#include <QAbstractScrollArea>
#include <functional>
#include <memory>
#include <optional>

#include "print/PageFonts.h"
#include "print/PagePainter.h"
#include "reports/ReportViewer.h"

namespace lorvane {

/// The pages of a report, one below the other. Only those in view are painted.
class ReportPages : public QAbstractScrollArea {
 public:
  ReportPages();

  /// The report is kept by its viewer. Shows it from its first page on.
  void SetReport(const PagedReport& report);
  /// Per cent of the natural size. What was in the middle of the view stays there.
  void SetZoom(int percent);
  /// Brings the upper edge of a page, counted from 1, into view unless it is the one in front.
  void ShowPage(int page);
  /// Lays a colour under a text and brings it into view; nothing marks none.
  void Mark(const std::optional<ReportViewer::Match>& match);
  [[nodiscard]] int PageCount() const;
  /// The page, counted from 1, that takes the middle of the view.
  [[nodiscard]] int PageInView() const;
  /// What stands on it.
  [[nodiscard]] QString TextInView() const;

  /// Called when scrolling has brought another page into view.
  std::function<void(int page)> OnPageInView;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  [[nodiscard]] double PixelsPerPoint() const;
  [[nodiscard]] double PageStep() const;
  /// The upper edge of a page, counted from 0, in the whole strip of pages.
  [[nodiscard]] double TopOf(int page) const;
  void UpdateBars();
  void PaintPage(QPainter& painter, int page) const;

  PageFonts fonts_;
  const PagedReport* report_ = nullptr;
  std::unique_ptr<PagePainter> painter_;
  std::optional<ReportViewer::Match> match_;
  int zoom_ = ReportViewer::kNaturalZoom;
  int page_ = 1;
};

}  // namespace lorvane

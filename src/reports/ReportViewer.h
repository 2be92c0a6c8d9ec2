#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "reports/PageLayout.h"
#include "reports/ReportDocument.h"
#include "screen/Control.h"

namespace lorvane {

class ReportPainter;

/// Shows a report page by page. Its buttons are switched on one by one; what belongs to a button
/// that is off does nothing.
class ReportViewer : public Control {
 public:
  struct Buttons {
    bool exporting = false;
    bool navigation = false;
    bool progress = false;
    bool refresh = false;
    bool search = false;
    bool zoom = false;
    bool print = false;
  };

  static constexpr int kNaturalZoom = 100;
  static constexpr int kLeastZoom = 25;
  static constexpr int kMostZoom = 400;
  static constexpr int kAllDone = 100;

  ReportViewer(Screen& screen, std::string name);

  [[nodiscard]] const Buttons& ShownButtons() const { return buttons_; }
  void SetButtons(const Buttons& buttons);

  /// The report to be shown; View shows it, from its first page on.
  void SetReportSource(ReportDocument report);
  void View();
  /// Empty until View.
  [[nodiscard]] const ReportDocument& Report() const { return shown_; }

  /// Which showing this is: a number of its own for each View.
  [[nodiscard]] int Showing() const { return showing_; }
  /// The pages of the report shown, laid out for the front's painter.
  [[nodiscard]] const PagedReport& Pages() const;
  [[nodiscard]] int PageCount() const { return static_cast<int>(Pages().pages.size()); }
  /// Counted from 1.
  [[nodiscard]] int Page() const { return page_; }

  [[nodiscard]] int Zoom() const { return zoom_; }
  /// Per cent; raises 380 outside 25 to 400.
  void SetZoom(int percent);

  /// How much of long work on the report is done, in per cent; 0 when nothing is under way.
  [[nodiscard]] int WorkDone() const { return workDone_; }
  void SetWorkDone(int percent);

  /// Where the text last searched for stands.
  struct Match {
    int page = 0;
    std::size_t text = 0;
  };
  [[nodiscard]] const std::optional<Match>& FoundText() const { return found_; }

  // What a user does.
  void UserGoTo(int page);
  /// Brings a page into view by hand, which needs no button.
  void UserScrollTo(int page);
  void UserZoom(int percent);
  /// On to the next place of the text, without regard to case, from the last page on to the first;
  /// true when there is one.
  bool UserSearch(const std::string& text);
  void UserRefresh();
  void UserExport();
  void UserPrint();
  /// Presses a button by its name: first, previous, next, last, refresh, export, print. False when
  /// there is none of that name.
  bool UserPress(std::string_view button);

  std::function<void()> OnRefresh;
  std::function<void()> OnExport;
  /// The print button; `useDefault` false declines the default handling, OnDefaultPrint.
  std::function<void(bool& useDefault)> OnPrint;
  std::function<void()> OnDefaultPrint;

  [[nodiscard]] std::string ShownText() const override { return shown_.title; }
  /// page, pages, zoom, and for each button whether it is on: export, navigation, progress,
  /// refresh, search, zooming, print.
  [[nodiscard]] std::optional<std::string> Attribute(std::string_view name) const override;

 private:
  [[nodiscard]] bool Allowed(bool button) const { return button && Usable(); }
  [[nodiscard]] std::optional<Match> FindFrom(int page, std::size_t text,
                                              const std::string& wanted) const;

  Buttons buttons_;
  ReportDocument source_;
  ReportDocument shown_;
  int showing_ = 0;
  mutable std::optional<PagedReport> pages_;
  int page_ = 1;
  int zoom_ = kNaturalZoom;
  int workDone_ = 0;
  std::string searched_;
  std::optional<Match> found_;
};

}  // namespace lorvane

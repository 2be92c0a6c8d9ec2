#include "reports/ReportViewer.h"

#include <algorithm>
#include <array>
#include <utility>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "reports/PlainMeasure.h"
#include "reports/ReportPainter.h"
#include "screen/Screen.h"
#include "screen/ScreenServices.h"

namespace lorvane {

ReportViewer::ReportViewer(Screen& screen, std::string name) : Control(screen, std::move(name)) {}

void ReportViewer::SetButtons(const Buttons& buttons) {
  buttons_ = buttons;
  Changed();
}

void ReportViewer::SetReportSource(ReportDocument report) { source_ = std::move(report); }

void ReportViewer::View() {
  shown_ = std::move(source_);
  source_ = {};
  ++showing_;
  pages_.reset();
  found_.reset();
  page_ = 1;
  Changed();
}

const PagedReport& ReportViewer::Pages() const {
  if (!pages_) {
    const ReportPainter* painter = Owner().Context().services.Painter();
    const PlainMeasure plain;
    pages_ = LayOut(shown_, painter != nullptr ? painter->Measure() : plain);
  }
  return *pages_;
}

void ReportViewer::SetZoom(int percent) {
  if (percent < kLeastZoom || percent > kMostZoom) {
    throw RuntimeError(error_number::kInvalidPropertyValue);
  }
  zoom_ = percent;
  Changed();
}

void ReportViewer::SetWorkDone(int percent) {
  if (percent != workDone_) {
    workDone_ = percent;
    Changed();
  }
}

void ReportViewer::UserGoTo(int page) {
  if (Allowed(buttons_.navigation)) {
    UserScrollTo(page);
  }
}

void ReportViewer::UserScrollTo(int page) {
  page_ = std::clamp(page, 1, PageCount());
  Changed();
}

void ReportViewer::UserZoom(int percent) {
  if (Allowed(buttons_.zoom)) {
    SetZoom(std::clamp(percent, kLeastZoom, kMostZoom));
  }
}

std::optional<ReportViewer::Match> ReportViewer::FindFrom(int page, std::size_t text,
                                                          const std::string& wanted) const {
  for (; page <= PageCount(); ++page, text = 0) {
    const std::vector<PlacedText>& texts = Pages().pages[static_cast<std::size_t>(page - 1)].texts;
    for (; text < texts.size(); ++text) {
      if (ToLower(texts[text].text).find(wanted) != std::string::npos) {
        return Match{page, text};
      }
    }
  }
  return std::nullopt;
}

bool ReportViewer::UserSearch(const std::string& text) {
  if (!Allowed(buttons_.search) || text.empty()) {
    return false;
  }
  const std::string wanted = ToLower(text);
  const bool again = found_ && wanted == searched_ && found_->page == page_;
  searched_ = wanted;
  found_ = FindFrom(page_, again ? found_->text + 1 : 0, wanted);
  if (!found_) {
    found_ = FindFrom(1, 0, wanted);
  }
  if (found_) {
    page_ = found_->page;
  }
  Changed();
  return found_.has_value();
}

void ReportViewer::UserRefresh() {
  if (Allowed(buttons_.refresh) && OnRefresh) {
    OnRefresh();
  }
}

void ReportViewer::UserExport() {
  if (Allowed(buttons_.exporting) && OnExport) {
    OnExport();
  }
}

void ReportViewer::UserPrint() {
  if (!Allowed(buttons_.print)) {
    return;
  }
  bool useDefault = true;
  if (OnPrint) {
    OnPrint(useDefault);
  }
  if (useDefault && OnDefaultPrint) {
    OnDefaultPrint();
  }
}

bool ReportViewer::UserPress(std::string_view button) {
  if (EqualsNoCase(button, "first")) {
    UserGoTo(1);
  } else if (EqualsNoCase(button, "previous")) {
    UserGoTo(page_ - 1);
  } else if (EqualsNoCase(button, "next")) {
    UserGoTo(page_ + 1);
  } else if (EqualsNoCase(button, "last")) {
    UserGoTo(PageCount());
  } else if (EqualsNoCase(button, "refresh")) {
    UserRefresh();
  } else if (EqualsNoCase(button, "export")) {
    UserExport();
  } else if (EqualsNoCase(button, "print")) {
    UserPrint();
  } else {
    return false;
  }
  return true;
}

std::optional<std::string> ReportViewer::Attribute(std::string_view name) const {
  if (name == "page") {
    return std::to_string(page_);
  }
  if (name == "pages") {
    return std::to_string(PageCount());
  }
  if (name == "zoom") {
    return std::to_string(zoom_);
  }
  const std::array<std::pair<std::string_view, bool>, 7> switches{
      {{"export", buttons_.exporting},
       {"navigation", buttons_.navigation},
       {"progress", buttons_.progress},
       {"refresh", buttons_.refresh},
       {"search", buttons_.search},
       {"zooming", buttons_.zoom},
       {"print", buttons_.print}}};
  for (const auto& [button, on] : switches) {
    if (button == name) {
      return FlagText(on);
    }
  }
  return Control::Attribute(name);
}

}  // namespace lorvane

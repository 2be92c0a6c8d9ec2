#include "reports/ReportScreen.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "reports/CompanyHeading.h"
#include "reports/ReportFiles.h"
#include "reports/ReportPainter.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"

namespace lorvane {
namespace {

// The company; nobody before its information was filled in.
std::string AuthorOf(EngineConnection& connection) {
  try {
    return ReadCompanyHeading(connection).name;
  } catch (const RuntimeError& error) {
    if (error.Number() != error_number::kNoCurrentRow) {
      throw;
    }
    return {};
  }
}

}  // namespace

ReportScreen::ReportScreen(ScreenContext context, std::string name, std::string caption)
    : Screen(context, std::move(name), std::move(caption)) {
  properties_.Add("SelectReportType", &SelectReportType);
  CRViewer1.OnRefresh = [this] { ShowReport(); };
  CRViewer1.OnExport = [this] { ExportReport(); };
  CRViewer1.OnDefaultPrint = [this] { PrintReport(); };
}

std::optional<std::string> ReportScreen::Property(std::string_view name) const {
  constexpr std::string_view kReport = "report.";
  if (name.starts_with(kReport)) {
    const std::string* text = CRViewer1.Report().FindText(name.substr(kReport.size()));
    return text != nullptr ? std::optional<std::string>(*text) : std::nullopt;
  }
  return properties_.Get(name);
}

bool ReportScreen::SetProperty(std::string_view name, std::string_view value) {
  return properties_.Set(name, value);
}

const ReportDesign& ReportScreen::DesignOfType(
    std::initializer_list<const ReportDesign& (*)()> designs) const {
  const auto type = static_cast<std::size_t>(SelectReportType);
  if (SelectReportType < 0 || type >= designs.size()) {
    throw RuntimeError(error_number::kSubscriptOutOfRange);
  }
  return designs.begin()[type]();
}

void ReportScreen::ShowReport() {
  try {
    const DataConnection& session = *context_.session.gDataConn;
    Report report = MakeReport();
    LocateTables(report, session);
    report.SetAuthor(AuthorOf(session.Connection()));
    report.Fill(session, context_.services.Now());
    CRViewer1.SetReportSource(report.Document());
    CRViewer1.View();
  } catch (const RuntimeError& error) {
    context_.services.SetPointer(pointer::kDefault);
    ShowError(context_, error, box::kExclamation);
  }
}

void ReportScreen::ExportReport() {
  const std::string path =
      context_.services.AskForFile({"Export Report", ReportFileFilter(context_.services.Painter()),
                                    GetPathPart(context_.session.gDataConn->DataSource), true});
  if (!path.empty() && MayWrite(path)) {
    WithPainter([&](ReportPainter* painter) {
      WriteReport(CRViewer1.Report(), path, context_.session.files, painter);
    });
  }
}

bool ReportScreen::MayWrite(const std::string& path) const {
  return !context_.session.files.Exists(path) ||
         context_.services.MsgBox("The file exists already:\r\n" + path + "\r\nReplace it?",
                                  box::kQuestion | box::kYesNo, "Export Report") == answer::kYes;
}

void ReportScreen::PrintReport() {
  WithPainter([&](ReportPainter* painter) {
    if (painter == nullptr) {
      RaiseNoPrinter();
    }
    // The user is asked, and the pointer isn't busy meanwhile.
    context_.services.SetPointer(pointer::kDefault);
    painter->ChoosePrinter();
    context_.services.SetPointer(pointer::kHourglass);
    painter->Print(CRViewer1.Report());
  });
}

void ReportScreen::WithPainter(const std::function<void(ReportPainter*)>& work) {
  ReportPainter* painter = context_.services.Painter();
  if (painter != nullptr) {
    painter->OnPage = [this](std::size_t page, std::size_t pages) {
      CRViewer1.SetWorkDone(static_cast<int>(page * ReportViewer::kAllDone / pages));
    };
  }
  context_.services.SetPointer(pointer::kHourglass);
  std::optional<RuntimeError> failure;
  try {
    work(painter);
  } catch (const RuntimeError& error) {
    failure = error;
  }
  context_.services.SetPointer(pointer::kDefault);
  CRViewer1.SetWorkDone(0);
  if (painter != nullptr) {
    painter->OnPage = nullptr;
  }
  if (failure && failure->Number() != error_number::kCancelSelected) {
    ShowError(context_, *failure, box::kExclamation);
  }
}

}  // namespace lorvane

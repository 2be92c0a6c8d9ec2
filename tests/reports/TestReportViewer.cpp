#include <gtest/gtest.h>

#include "ReportCompany.h"
#include "basic/RuntimeError.h"
#include "reports/PlainMeasure.h"
#include "reports/RemittanceViewer.h"
#include "reports/ReportFiles.h"
#include "reports/ReportPainter.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

/// Notes what it is asked to do.
class NotingPainter : public ReportPainter {
 public:
  [[nodiscard]] const TextMeasure& Measure() const override { return measure_; }
  [[nodiscard]] std::string Pdf(const ReportDocument& report) override {
    return "pdf of " + report.title;
  }
  void ChoosePrinter() override {
    done += "choose;";
    if (cancels) {
      throw RuntimeError(error_number::kCancelSelected);
    }
  }
  void Print(const ReportDocument& report) override { done += "print " + report.title + ";"; }

  bool cancels = false;
  std::string done;

 private:
  PlainMeasure measure_;
};

class PaintingServices : public ScriptedServices {
 public:
  using ScriptedServices::ScriptedServices;
  [[nodiscard]] ReportPainter* Painter() override { return &painter; }

  NotingPainter painter;
};

class Viewing : public testing::Test {
 protected:
  Viewing() {
    company_.FillSummary();
    viewer_.Load();
  }

  ReportCompany company_;
  PaintingServices services_{company_.GetSession(), NoScreens()};
  frmSubQtrSumm viewer_{services_.Context()};
};

TEST_F(Viewing, PrintingAsksForThePrinterAndPrintsTheReportShown) {
  viewer_.CRViewer1.UserPrint();
  EXPECT_EQ(services_.painter.done, "choose;print Annual Sub-Contractor Report;");
  services_.painter.done.clear();
  services_.painter.cancels = true;
  viewer_.CRViewer1.UserPrint();
  EXPECT_EQ(services_.painter.done, "choose;");
  EXPECT_EQ(services_.NextBox(), "");
}

TEST_F(Viewing, ThePaintersKindOfFileComesFirst) {
  EXPECT_EQ(ReportFileFilter(&services_.painter),
            "PDF document (*.pdf)|*.pdf|Excel workbook (*.xlsx)|*.xlsx|CSV table (*.csv)|*.csv|"
            "Text (*.txt)|*.txt");
  const std::string path = company_.Folder() + "/report.PDF";
  WriteReport(viewer_.CRViewer1.Report(), path, company_.Disk(), &services_.painter);
  EXPECT_EQ(company_.Disk().Read(path), "pdf of Annual Sub-Contractor Report");
  EXPECT_THROW(WriteReport(viewer_.CRViewer1.Report(), path, company_.Disk(), nullptr),
               RuntimeError);
}

TEST_F(Viewing, ButtonsThatAreOffDoNothing) {
  ReportViewer& viewer = viewer_.CRViewer1;
  viewer_.CRViewer1.UserExport();
  EXPECT_FALSE(viewer.UserSearch("Smith"));
  viewer.UserZoom(200);
  EXPECT_EQ(viewer.Zoom(), 100);
  viewer_.Export = viewer_.Search = viewer_.Zoom = true;
  company_.FillSummary();
  viewer_.Load();
  services_.Answer(company_.Folder() + "/report.csv");
  viewer_.CRViewer1.UserExport();
  EXPECT_TRUE(company_.Disk().Exists(company_.Folder() + "/report.csv"));
  EXPECT_NE(services_.NextInput(), "");
  viewer.UserZoom(200);
  EXPECT_EQ(viewer.Zoom(), 200);
  viewer.UserZoom(9999);
  EXPECT_EQ(viewer.Zoom(), ReportViewer::kMostZoom);
  EXPECT_THROW(viewer.SetZoom(0), RuntimeError);
}

TEST_F(Viewing, TheSearchGoesThroughEveryPlaceAndRoundToTheFirst) {
  viewer_.Search = true;
  company_.FillSummary();
  viewer_.Load();
  ReportViewer& viewer = viewer_.CRViewer1;
  std::vector<std::size_t> places;
  for (int i = 0; i < 5; ++i) {
    ASSERT_TRUE(viewer.UserSearch("SMITH"));
    places.push_back(viewer.FoundText()->text);
  }
  // Smith has a line for each of his two percentages.
  EXPECT_LT(places[0], places[1]);
  EXPECT_EQ(places[2], places[0]);
  EXPECT_EQ(places[4], places[0]);
  EXPECT_FALSE(viewer.UserSearch("Elm"));
  EXPECT_FALSE(viewer.FoundText());
}

}  // namespace
}  // namespace lorvane

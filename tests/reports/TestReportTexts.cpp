#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "ReportCompany.h"
#include "reports/RemittanceViewer.h"
#include "reports/ReportExports.h"
#include "reports/frmReports.h"

namespace lorvane {
namespace {

/// Compares a report with the text that stands in a file of expected/.
void ExpectText(const ReportDocument& report, const std::string& name) {
  std::ifstream file(std::string(LORVANE_EXPECTED_REPORTS "/") + name + ".txt");
  std::ostringstream expected;
  expected << file.rdbuf();
  EXPECT_EQ(ReportAsText(report), expected.str()) << name;
}

void SetHeadings(RemittanceViewer& viewer) {
  viewer.StartDate = "February 01, 2026";
  viewer.EndDate = "February 28, 2026";
  viewer.Identifier = "123456789NW0001";
  viewer.IndustryDesc = "Roofing";
  viewer.CompanyName = "Tern Ltd 9 Quay Digby NS B0V 1A0";
}

TEST(ReportTexts, RemittanceOfOneIndustryAndOfAll) {
  ReportCompany company;
  for (const int all : {0, 1}) {
    company.FillEmployees(all == 1 ? 7 : 1);
    frmrptEmp employees(company.Context());
    SetHeadings(employees);
    employees.SelectReportType = static_cast<std::int16_t>(all);
    ExpectText(company.Show(employees), all == 1 ? "employees-all" : "employees-one");
    EXPECT_TRUE(employees.Close());
    EXPECT_EQ(company.First("SELECT Count(*) FROM tblEmpRemittance"), "0");

    company.FillSubContractors(all == 1 ? 7 : 1);
    frmRptSub subContractors(company.Context());
    SetHeadings(subContractors);
    subContractors.SelectReportType = static_cast<std::int16_t>(all);
    ExpectText(company.Show(subContractors), all == 1 ? "contractors-all" : "contractors-one");
    EXPECT_TRUE(subContractors.Close());
    EXPECT_EQ(company.First("SELECT Count(*) FROM tblSubRemittance"), "0");
  }
  EXPECT_EQ(company.Services().NextBox(), "");
}

TEST(ReportTexts, SummariesOfSubContractors) {
  ReportCompany company;
  company.Execute(
      "INSERT INTO tblSubHistory (SubContractId, PercentLabour, Rate, AmountA, AssessAmtA) VALUES "
      "(32, 12.5, 2.45, 70.7, 8.84)");
  for (const std::int16_t type : {std::int16_t{0}, std::int16_t{1}}) {
    company.FillSummary();
    frmSubQtrSumm viewer(company.Context());
    viewer.SelectReportType = type;
    viewer.Identifier = "123456789NW0001";
    SetUpSummary(viewer, {"Tern Ltd", "", "9 Quay Digby NS B0V 1A0"}, 2026);
    ExpectText(company.Show(viewer), type == 0 ? "annual" : "quarterly");
    EXPECT_TRUE(viewer.Close());
  }
}

TEST(ReportTexts, OfTheEmployer) {
  ReportCompany company;
  for (const char* section : {"Claim", "Financial"}) {
    const std::string own(section);
    for (const char* key :
         {"Name", "Street", "City", "Province", "PostalCode", "Phone", "Fax", "SameAs"}) {
      company.SetIni(own, key, own + " " + key);
    }
  }
  for (const char* key : {"Street", "City", "Province", "PostalCode", "SameAs"}) {
    company.SetIni("Location", key, std::string("Location ") + key);
  }
  company.SetIni("PayrollService", "Internal", "No");
  company.SetIni("PayrollService", "External", "Yes");
  company.SetIni("PayrollService", "Name", "Pay Co");
  company.SetIni("FinancialInstitution", "Name", "Credit Union");
  company.SetIni("FinancialInstitution", "AcctNo", "12-34");
  company.SetIni("MainBusiness", "MainBusiness", "Roofs");
  constexpr const char* kNames[] = {"update", "assets", "principals", "clearance"};
  for (std::int16_t type = 0; type < 4; ++type) {
    frmReports viewer(company.Context());
    viewer.SelectReportType = type;
    viewer.ReportingYear = 2025;
    viewer.TradeName = viewer.MainBusiness = viewer.FinanContact = true;
    ExpectText(company.Show(viewer), kNames[type]);
    EXPECT_TRUE(viewer.Close());
  }
  EXPECT_EQ(company.Services().NextBox(), "");
}

TEST(ReportTexts, AnUnknownTypeAndAFileThatIsGoneAreTold) {
  ReportCompany company;
  frmrptEmp viewer(company.Context());
  viewer.SelectReportType = 2;
  EXPECT_TRUE(company.Show(viewer).sections.empty());
  EXPECT_EQ(company.Services().NextBox(), "\"Error\" \"9\\nSubscript out of range\"");
  viewer.SelectReportType = 1;
  company.GetSession().gDataConn->DataSource = company.Folder() + "/gone.mdb";
  EXPECT_TRUE(company.Show(viewer).sections.empty());
  EXPECT_TRUE(company.Services().NextBox().find("gone.mdb") != std::string::npos);
  EXPECT_EQ(viewer.CRViewer1.PageCount(), 1);
}

}  // namespace
}  // namespace lorvane

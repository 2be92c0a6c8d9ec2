#include "ReportCompany.h"

#include <gtest/gtest.h>

#include "reports/RemittanceFill.h"

namespace lorvane {
namespace {

constexpr DateTime kFrom{2026, 2, 1};
constexpr DateTime kTo{2026, 2, 28};

}  // namespace

ReportCompany::ReportCompany() {
  Execute(
      "INSERT INTO tblCompany (CompanyId, BusNum, PrgIdentifier, LegalName, OpAs, Address, City, "
      "Province, PostalCode) VALUES (1, '123456789', 'NW', 'Tern Ltd', 'Terns', '9 Quay', 'Digby', "
      "'NS', 'B0V 1A0')");
  Execute(
      "UPDATE tblIndustries SET IndA = 1, DescA = 'Roofing', IdentifierA = '0001', RateA = 0.0235, "
      "SicA = '4235', IndB = 1, DescB = 'Paving', IdentifierB = '0002', RateB = 0.0311, SicB = "
      "'4216'");
  AddPayments();
  Execute(
      "INSERT INTO tblAssets (AssetId, Description, SerialNo, LicenseNo, IsVehicle, VehicleMake, "
      "VehicleModel, VehicleColour, VehicleYear) VALUES (51, 'Van', 'S-1', 'L-2', 1, 'Make', "
      "'Model', 'Red', 2019)");
  Execute("INSERT INTO tblAssets (AssetId, Description) VALUES (52, 'Saw, large')");
  Execute(
      "INSERT INTO tblPrincipals (PrincipalId, LastName, FirstName, Title, Address, City, "
      "Province, PostalCode, Sin, BirthDate, WorkPhone, CellPhone, HomePhone, FaxPhone) VALUES "
      "(61, 'Tern', 'Tom', 'President', '7 Quay', 'Truro', 'NB', 'B0V 1A2', '111-222-333', "
      "'3/4/1960', 'W1', 'C2', 'H3', 'F4')");
  Execute(
      "INSERT INTO tblPrincipals (PrincipalId, LastName, Title, BirthDate) VALUES (62, "
      "'Auk', 'Partner', '1/1/1899')");
}

void ReportCompany::AddPayments() {
  Execute(
      "INSERT INTO tblEmployees (EmployeeId, LastName, FirstName, Initial) VALUES (21, 'Able', "
      "'Ann', 'A')");
  Execute("INSERT INTO tblEmployees (EmployeeId, LastName) VALUES (22, 'O''Brien')");
  const auto pay = [&](const char* values) {
    Execute(std::string("INSERT INTO tblEmpHistory (EmployeeId, AssessRt, PayDateA, AmountA, "
                        "AssessAmtA, IndA) VALUES (") +
            values + ")");
  };
  pay("22, 2.35, '2/3/2026', 1100.01, 1000.02, 1");
  pay("21, 2.36, '2/4/2026', 210.03, 200.04, 1");
  pay("21, 2.37, '2/2/2026', 320.05, 300.06, 1");
  pay("21, 2.38, '3/2/2026', 430.07, 400.08, 1");
  Execute(
      "INSERT INTO tblEmpHistory (EmployeeId, AssessRt, PayDateB, AmountB, AssessAmtB, IndB) "
      "VALUES (22, 3.11, '2/5/2026', -54.09, -50.5, 1)");

  Execute(
      "INSERT INTO tblSubContract (SubContractId, Name, Expiry, BusNum, ContractType, Phone, "
      "Email) VALUES (31, 'Smith', '1/4/2026', '900000001', 'Clearance Letter Supplied', "
      "'555-0101', 's@x.example')");
  Execute(
      "INSERT INTO tblSubContract (SubContractId, Name, Expiry) VALUES (32, 'Jones & Co', "
      "'1/5/2026')");
  Execute(
      "INSERT INTO tblSubContract (SubContractId, Name, Expiry) VALUES (33, 'Ash', '1/1/1899')");
  Execute("INSERT INTO tblSubContract (SubContractId, Name) VALUES (34, 'Elm')");
  const auto invoice = [&](const char* values) {
    Execute(std::string("INSERT INTO tblSubHistory (SubContractId, PercentLabour, Rate, PayDateA, "
                        "AmountA, AssessAmtA, IndA) VALUES (") +
            values + ")");
  };
  invoice("31, 50, 2.41, '2/6/2026', 1600.11, 800.06, 1");
  invoice("31, 50, 2.41, '2/7/2026', 1700.13, 850.07, 1");
  invoice("31, 25, 2.43, '2/8/2026', 1800.15, 450.04, 1");
  invoice("32, 12.5, 2.44, '5/9/2026', 1900.17, 237.52, 1");
  invoice("32, 12.5, 2.45, '12/31/2026', 2000.19, 250.02, 1");
}

void ReportCompany::FillEmployees(int industryItem) {
  RemittanceFill fill(Context());
  fill.ClearEmployeeRemittance();
  EXPECT_TRUE(fill.FillEmployeeRemittance(kFrom, kTo, industryItem));
}

void ReportCompany::FillSubContractors(int industryItem) {
  RemittanceFill fill(Context());
  bool cleared = false;
  fill.ClearSubContractorRemittance(cleared);
  EXPECT_TRUE(fill.FillSubContractorRemittance(kFrom, kTo, industryItem));
}

void ReportCompany::FillSummary() {
  RemittanceFill fill(Context());
  EXPECT_TRUE(fill.FillSubContractorSummary());
}

ReportDocument ReportCompany::Show(ReportScreen& viewer) {
  viewer.Load();
  return viewer.CRViewer1.Report();
}

}  // namespace lorvane

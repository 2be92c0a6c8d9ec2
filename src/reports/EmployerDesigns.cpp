#include <algorithm>
#include <string_view>

#include "data/modDataAccess.h"
#include "reports/DesignCells.h"
#include "reports/ReportDesigns.h"

namespace lorvane {
namespace {

constexpr DesignText kLegalName{"legalName", DesignText::Place::kHeading};
constexpr DesignText kReportingYear{"reportingYear", DesignText::Place::kStated};

std::vector<std::variant<DesignList, DesignForm>> UpdateForms() {
  return {DesignForm{"Employer",
                     {{"Legal name:", "legalName", "markEmployerName"},
                      {"Trade name:", "tradeName", "markTradeName"},
                      {"Business number:", "businessNumber", "markBusinessNumber"},
                      {"Main business activity:", "mainBusiness", "markBusiness"},
                      {"SIC codes:", "sicCodes", "markBusiness"}}},
          DesignForm{"Claim related contact",
                     {{"Name:", "claimName", "markClaim"},
                      {"Street:", "claimStreet"},
                      {"City:", "claimCity"},
                      {"Province:", "claimProvince"},
                      {"Postal code:", "claimPostalCode"},
                      {"Phone:", "claimPhone"},
                      {"Fax:", "claimFax"}}},
          DesignForm{"Financial related contact",
                     {{"Name:", "financialName", "markFinancial"},
                      {"Street:", "financialStreet"},
                      {"City:", "financialCity"},
                      {"Province:", "financialProvince"},
                      {"Postal code:", "financialPostalCode"},
                      {"Phone:", "financialPhone"},
                      {"Fax:", "financialFax"}}},
          DesignForm{"Payroll and bank",
                     {{"Payroll:", "payroll"},
                      {"Financial institution:", "financialInstitution"},
                      {"Account number:", "accountNumber"}}},
          DesignForm{"Physical location",
                     {{"Street:", "locationStreet"},
                      {"City:", "locationCity"},
                      {"Province:", "locationProvince"},
                      {"Postal code:", "locationPostalCode"}}}};
}

// A design of texts that stand nowhere but in its forms.
std::vector<DesignText> UpdateTexts() {
  std::vector<DesignText> texts{kReportingYear};
  for (const auto& section : UpdateForms()) {
    for (const DesignField& field : std::get<DesignForm>(section).fields) {
      texts.push_back({field.text});
      // Main business and SIC codes share one mark.
      if (field.mark != nullptr &&
          std::none_of(texts.begin(), texts.end(), [&](const DesignText& text) {
            return std::string_view(text.name) == field.mark;
          })) {
        texts.push_back({field.mark, DesignText::Place::kElsewhere, kChangeMark});
      }
    }
  }
  return texts;
}

Value Text(const Value& value) { return NullToText(value); }

template <std::size_t column>
Value ReadText(const DataRow& row, const FillMoment& /*moment*/) {
  return Text(row[column]);
}

// The day that stands for none.
constexpr DateTime kNoDay{1899, 1, 1};

namespace clearance {

enum Place : std::size_t { kId, kName, kBusNum, kContract, kExpiry, kPhone, kEmail };

constexpr const char* kRows =
    "SELECT SubContractId, Name, BusNum, ContractType, Expiry, Phone, Email FROM tblSubContract "
    "WHERE NOT Expiry IS NULL AND NOT Expiry = #1/1/1899# ORDER BY Expiry, Name, SubContractId";

Value State(const DataRow& row, const FillMoment& moment) {
  const auto* expiry = std::get_if<DateTime>(&row[kExpiry]);
  return expiry != nullptr && expiry->Day() < moment.now.Day() ? "Expired" : "";
}

}  // namespace clearance

}  // namespace

const ReportDesign& crptEmployerYEUpdate() {
  static const ReportDesign design{"Employer Year-end Update",
                                   PageOrientation::kPortrait,
                                   {"tblCompany"},
                                   UpdateTexts(),
                                   UpdateForms(),
                                   {std::string(kChangeMark) + " has changed since last year."}};
  return design;
}

const ReportDesign& crptAssetLog() {
  static const ReportDesign design{
      "Employer Year-end Asset Log",
      PageOrientation::kLandscape,
      {"tblAssets"},
      {kLegalName, kReportingYear},
      {DesignList{
          "",
          "SELECT AssetId, Description, SerialNo, LicenseNo, IsVehicle, VehicleMake, VehicleModel, "
          "VehicleColour, VehicleYear FROM tblAssets ORDER BY Description, AssetId",
          {{"Id", ReportFormat::kText, 35, ReadText<0>},
           {"Description", ReportFormat::kText, 170, ReadText<1>},
           {"Serial number", ReportFormat::kText, 100, ReadText<2>},
           {"License no.", ReportFormat::kText, 90, ReadText<3>},
           {"Vehicle", ReportFormat::kText, 50,
            [](const DataRow& row, const FillMoment&) -> Value {
              constexpr std::size_t kIsVehicle = 4;
              return NullToBool(row[kIsVehicle]) ? "Yes" : "No";
            }},
           {"Make", ReportFormat::kText, 80, ReadText<5>},
           {"Model", ReportFormat::kText, 80, ReadText<6>},
           {"Colour", ReportFormat::kText, 60, ReadText<7>},
           {"Year", ReportFormat::kText, 40, ReadText<8>}},
          std::nullopt,
          nullptr,
          1,
          "asset",
          "assets"}},
      {"All assets on file, by description."}};
  return design;
}

const ReportDesign& crptPrincipals() {
  static const ReportDesign design{
      "Employer Year-end Principal Information",
      PageOrientation::kLandscape,
      {"tblPrincipals"},
      {kLegalName, kReportingYear},
      {DesignList{
          "",
          "SELECT PrincipalId, LastName, FirstName, Title, Address, City, Province, PostalCode, "
          "Sin, BirthDate, WorkPhone, CellPhone, HomePhone, FaxPhone FROM tblPrincipals ORDER BY "
          "LastName, FirstName, PrincipalId",
          {{"Id", ReportFormat::kText, 26, ReadText<0>},
           {"Last name", ReportFormat::kText, 72, ReadText<1>},
           {"First name", ReportFormat::kText, 58, ReadText<2>},
           {"Title", ReportFormat::kText, 58, ReadText<3>},
           {"Address", ReportFormat::kText, 84, ReadText<4>},
           {"City", ReportFormat::kText, 56, ReadText<5>},
           {"Prov.", ReportFormat::kText, 30, ReadText<6>},
           {"Postal code", ReportFormat::kText, 44, ReadText<7>},
           {"SIN", ReportFormat::kText, 58, ReadText<8>},
           {"Born", ReportFormat::kDate, 54,
            [](const DataRow& row, const FillMoment&) {
              constexpr std::size_t kBirthDate = 9;
              return row[kBirthDate] == Value(kNoDay) ? Value() : row[kBirthDate];
            }},
           {"Work phone", ReportFormat::kText, 62, ReadText<10>},
           {"Cell phone", ReportFormat::kText, 62, ReadText<11>},
           {"Home phone", ReportFormat::kText, 62, ReadText<12>},
           {"Fax", ReportFormat::kText, 62, ReadText<13>}},
          std::nullopt,
          nullptr,
          1,
          "principal",
          "principals"}},
      {"All owners, partners and officers on file, by last name."}};
  return design;
}

const ReportDesign& crptClearanceExpiry() {
  using namespace clearance;
  static const ReportDesign design{
      "Clearance Letter Expiries",
      PageOrientation::kLandscape,
      {"tblSubContract"},
      {kLegalName},
      {DesignList{"",
                  kRows,
                  {{"Expires", ReportFormat::kDate, 70, Read<kExpiry>},
                   {"State", ReportFormat::kText, 55, State},
                   {"Id", ReportFormat::kText, 40, ReadText<kId>},
                   {"Sub-contractor", ReportFormat::kText, 190, ReadText<kName>},
                   {"Business number", ReportFormat::kText, 90, ReadText<kBusNum>},
                   {"Contract type", ReportFormat::kText, 130, ReadText<kContract>},
                   {"Phone", ReportFormat::kText, 85, ReadText<kPhone>},
                   {"E-mail", ReportFormat::kText, 120, ReadText<kEmail>}},
                  std::nullopt,
                  nullptr,
                  3,
                  "clearance letter",
                  "clearance letters"}},
      {"Sub-contractors with an expiry date on file, the earliest first. A letter is expired from "
       "the day after its expiry date on."}};
  return design;
}

}  // namespace lorvane

#include "company/cCompany.h"

#include "basic/Text.h"

namespace lorvane {
namespace {

constexpr const char* kKey = "CompanyId, ";
constexpr const char* kColumns =
    "BusNum, PrgIdentifier, LegalName, OpAs, Address, City, Province, PostalCode, AreaPhone, "
    "Phone, AreaFax, Fax, Email";

}  // namespace

cCompany::cCompany()
    : Record({"cCompany", "tblCompany", "CompanyId", "tblCompany", "tblCompany", "tblCompany"}) {
  Bind("CompanyId", CompanyId);
  Bind("BusNum", BusNum);
  Bind("PrgIdentifier", PrgIdentifier);
  Bind("LegalName", LegalName);
  Bind("OpAs", OpAs);
  Bind("Address", Address);
  Bind("City", City);
  Bind("Province", Province);
  Bind("PostalCode", PostalCode);
  Bind("AreaPhone", AreaPhone);
  Bind("Phone", Phone);
  Bind("AreaFax", AreaFax);
  Bind("Fax", Fax);
  Bind("Email", Email);
}

std::string cCompany::SelectText() const {
  return SelectFilter == 0 ? "SELECT " + RetrieveColumns() + " FROM tblCompany" : std::string();
}

std::string cCompany::RetrieveColumns() const {
  return SelectFilter == 0 ? std::string(kKey) + kColumns : std::string();
}

std::string cCompany::InsertText() const { return InsertOf(std::string(kKey) + kColumns); }

std::string cCompany::UpdateText() const { return UpdateOf(kColumns) + WhereKey(); }

bool cCompany::ValidateRecord() {
  ClearInfo();
  if (Trim(BusNum).empty()) {
    infoMsg_ += "Please enter the business number assigned\r\nto you by workers' compensation. ";
    fieldInError_ = "BusNum";
  }
  if (Trim(LegalName).empty()) {
    // A comparison that never holds stands in the sentence's place; the company window refuses an
    // empty legal name before it comes to this.
    infoMsg_ = "False";
  }
  return infoMsg_.empty();
}

}  // namespace lorvane

#include "reports/CompanyHeading.h"

#include "data/Recordset.h"

namespace lorvane {

CompanyHeading ReadCompanyHeading(EngineConnection& connection) {
  Recordset rows;
  rows.Open(connection,
            "SELECT LegalName, Address, City, Province, PostalCode, BusNum, PrgIdentifier FROM "
            "tblCompany");
  CompanyHeading heading;
  heading.name = TextOf(rows.Field("LegalName"));
  for (const char* column : {"Address", "City", "Province", "PostalCode"}) {
    if (const Value& value = rows.Field(column); !IsNull(value)) {
      heading.address += (heading.address.empty() ? "" : " ") + TextOf(value);
    }
  }
  heading.businessNumber = TextOf(rows.Field("BusNum")) + TextOf(rows.Field("PrgIdentifier"));
  return heading;
}

}  // namespace lorvane

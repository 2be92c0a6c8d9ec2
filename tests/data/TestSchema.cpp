#include <gtest/gtest.h>

#include <map>

#include "data/Schema.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

TEST(Schema, ANewCompanyHasItsTablesAndRows) {
  TestCompany company;
  EngineConnection& file = company.Connection();
  const std::map<std::string, std::size_t> columns{
      {"tblAssessable", 5},  {"tblAssets", 9},         {"tblCompany", 14},
      {"tblEmpHistory", 30}, {"tblEmpRemittance", 10}, {"tblEmployees", 44},
      {"tblIndustries", 31}, {"tblPrincipals", 14},    {"tblSubContract", 39},
      {"tblSubHistory", 31}, {"tblSubRemittance", 9},  {"tblTableIDs", 3}};
  std::map<std::string, std::size_t> found;
  for (const std::string& table : file.TableNames()) {
    found[table] = file.ColumnsOf(table).size();
  }
  EXPECT_EQ(found, columns);
  EXPECT_EQ(RowsText(file, "SELECT TableName, NextId FROM tblTableIDs ORDER BY TableName"),
            "tblAssessable|13;tblAssets|0;tblCompany|0;tblEmpHistory|0;tblEmployees|0;"
            "tblPrincipals|0;tblSubContract|0;tblSubHistory|0");
  EXPECT_EQ(RowsText(file, "SELECT Count(*) FROM tblIndustries"), "1");
  EXPECT_EQ(RowsText(file, "SELECT IndA, DescA, RateF, SicC FROM tblIndustries"), "0|||");
  EXPECT_EQ(RowsText(file,
                     "SELECT ProvId, Description, AssessLabour, Standard FROM tblAssessable ORDER "
                     "BY AssessId"),
            "ALL|Clearance Letter Supplied|0|-1;ALL|Exempt Industry|0|-1;ALL|Not Assigned|0|-1;"
            "NS|Labour Only|100|0;NS|Labour and Materials|50|0;NS|Courier Service|50|0;"
            "NS|Trucking and Leased Equipment|25|0;NS|Logging (Chain Saw)|75|0;NB|Labour|100|0;"
            "NB|Janitorial Service|80|0;NB|Labour and Materials|50|0;NB|Courier/Mail Service|40|0;"
            "NB|Hired Equipment|25|0");
}

}  // namespace
}  // namespace lorvane

#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "data/Recordset.h"
#include "support/ErrorOf.h"
#include "support/RowsText.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

TEST(Recordset, AddsRowsAndChangesThem) {
  TestCompany company;
  EngineConnection& file = company.Connection();
  Recordset rows;
  rows.OpenForUpdate(file, "SELECT AssetId, Description, VehicleYear FROM tblAssets");
  EXPECT_TRUE(rows.Eof() && rows.Bof());
  for (const char* name : {"Skiff", "Winch"}) {
    // Begun and given up.
    rows.AddNew();
    rows.SetField("VehicleYear", 1066);
    rows.AddNew();
    rows.SetField("description", std::string(name));
    rows.Update();
  }
  EXPECT_EQ(TextOf(rows.Field("Description")), "Winch");
  EXPECT_EQ(TextOf(rows.Field("AssetId")), "2");
  EXPECT_TRUE(IsNull(rows.Field("VehicleYear")));
  rows.MovePrevious();
  rows.SetField("VehicleYear", 1998);
  rows.Update();
  rows.SetField("VehicleYear", std::string("new"));
  EXPECT_THROW(rows.Update(), RuntimeError);
  EXPECT_EQ(TextOf(rows.Field("VehicleYear")), "1998");
  rows.AddNew();
  rows.SetField("Description", std::string(51, 'x'));
  EXPECT_EQ(ErrorOf([&] { rows.Update(); }), error_number::kEngineTextTooLong);
  EXPECT_EQ(rows.RecordCount(), 2U);
  EXPECT_EQ(RowsText(file, "SELECT AssetId, Description, VehicleYear FROM tblAssets"),
            "1|Skiff|1998;2|Winch|");
}

TEST(Recordset, RaisesWhatACursorRaises) {
  TestCompany company;
  Recordset rows;
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(rows.Eof()); }), 3704);
  rows.Open(company.Connection(), "SELECT AssessId, ProvId FROM tblAssessable");
  EXPECT_EQ(rows.RecordCount(), 13U);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(rows.Field("Nowhere")); }), 3265);
  rows.MovePrevious();
  EXPECT_TRUE(rows.Bof());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(rows.Field("ProvId")); }), 3021);
  EXPECT_EQ(ErrorOf([&] { rows.MovePrevious(); }), 3021);
  rows.MoveLast();
  EXPECT_EQ(TextOf(rows.Field("PROVID")), "NB");
  rows.MoveNext();
  EXPECT_EQ(ErrorOf([&] { rows.MoveNext(); }), 3021);
  EXPECT_EQ(ErrorOf([&] { rows.SetField("ProvId", std::string("ON")); }), 3021);
  rows.Open(company.Connection(), "SELECT AssetId FROM tblAssets");
  EXPECT_EQ(ErrorOf([&] { rows.MoveFirst(); }), 3021);
  EXPECT_EQ(ErrorOf([&] { rows.MoveLast(); }), 3021);
  rows.Close();
  EXPECT_EQ(ErrorOf([&] { rows.AddNew(); }), 3704);
}

}  // namespace
}  // namespace lorvane

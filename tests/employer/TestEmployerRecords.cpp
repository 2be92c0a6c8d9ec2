#include <gtest/gtest.h>

#include "basic/RuntimeError.h"
#include "employer/cAssets.h"
#include "employer/cPrincipals.h"
#include "support/StatementTable.h"

namespace lorvane {
namespace {

using EmployerRecords = RecordingTest;

void Fill(cPrincipals& person) {
  person.LastName = "O'Hearn";
  person.FirstName = "Bridget";
  person.Title = "President";
  person.Address = "1 Quay";
  person.City = "Digby";
  person.Province = "NS";
  person.PostalCode = "B0V 1A0";
  person.Sin = "416-223-871";
  person.BirthDate = "March 4, 1960";
  person.WorkPhone = "1";
  person.CellPhone = "2";
  person.HomePhone = "3";
}

void Fill(cAssets& asset) {
  asset.Description = "Cat's paw";
  asset.SerialNo = "S1";
  asset.IsVehicle = true;
  asset.VehicleMake = "Ford";
  asset.VehicleModel = "F1";
  asset.VehicleColour = "red";
  asset.VehicleYear = "1998";
}

TEST_F(EmployerRecords, Statements) {
  cPrincipals person;
  Fill(person);
  person.PrincipalId = 42;
  CheckStatements("employer/statements/cPrincipals.txt", person);
  cAssets asset;
  Fill(asset);
  asset.AssetId = 42;
  CheckStatements("employer/statements/cAssets.txt", asset);
}

template <typename RecordClass>
void CheckRefusals(RecordingEngine& engine, DataConnection& connection, const std::string& name,
                   const std::string& table) {
  RecordClass record;
  Fill(record);
  record.SetDataConnection(&connection);
  engine.OnExecute = [](const std::string& statement) {
    return statement.find("tblTableIDs") == std::string::npos ? 0 : 1;
  };
  EXPECT_FALSE(record.AddNew());
  EXPECT_EQ(record.InfoMsg(), name + ".AddNew()\r\nCould not insert into this table: " + table);
  EXPECT_FALSE(record.Update());
  EXPECT_EQ(record.InfoMsg(), name + ".Update()\r\nCould Not Update This Table: " + table);
  engine.OnQuery = [](const std::string& /*statement*/) -> ResultTable {
    throw RuntimeError(error_number::kEngineUnknownTable);
  };
  RecordClass keyless;
  Fill(keyless);
  keyless.SetDataConnection(&connection);
  EXPECT_FALSE(keyless.AddNew());
  EXPECT_TRUE(keyless.InfoMsg().starts_with(
      name + ".GetNewPrimaryKey()\r\nCould not generate a unique ID for this table: " + table +
      " \r\n"))
      << keyless.InfoMsg();
}

TEST_F(EmployerRecords, RefusalsOfPrincipals) {
  CheckRefusals<cPrincipals>(engine_, connection_, "cPrincipals", "tblPrincipals");
}

TEST_F(EmployerRecords, RefusalsOfAssets) {
  CheckRefusals<cAssets>(engine_, connection_, "cAssets", "tblAssets");
}

}  // namespace
}  // namespace lorvane

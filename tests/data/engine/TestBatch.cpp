#include "data/engine/EngineTest.h"
#include "data/engine/WriteBatch.h"
#include "support/FaultyVfs.h"

namespace lorvane {
namespace {

// With a disk that can fail under the file.
class Batch : public EngineTest {
 protected:
  Batch() {
    connection_.reset();
    connection_ = engine_.Open(path_, kPassword);
    Run("INSERT INTO tblEmployees (EmployeeId, LastName) VALUES (1, 'Pike')");
  }
  // The file goes before its disk.
  ~Batch() override {
    disk_.Heal();
    connection_.reset();
  }

  std::string Insert(int id, std::size_t length = 10) {
    return Run("INSERT INTO tblEmployees (EmployeeId, Notes) VALUES (" + std::to_string(id) +
               ", '" + std::string(length, 'n') + "')");
  }
  std::string Ids() { return Rows("SELECT EmployeeId FROM tblEmployees ORDER BY EmployeeId"); }
  std::string IdsAfterReopening() {
    connection_.reset();
    connection_ = engine_.Open(path_, kPassword);
    return Ids();
  }
  std::string End() {
    return Try([&] {
      connection_->EndBatch();
      return std::string();
    });
  }

  FaultyVfs disk_;
};

TEST_F(Batch, CommitsOnceAtTheOutermostEnd) {
  const std::unique_ptr<EngineConnection> other = engine_.Open(path_, kPassword);
  WriteBatch outer(*connection_);
  {
    WriteBatch inner(*connection_);
    Insert(2);
    inner.Commit();
  }
  EXPECT_EQ(Ids(), "1;2");
  EXPECT_EQ(Rows(*other, "SELECT EmployeeId FROM tblEmployees"), "1");
  outer.Commit();
  EXPECT_EQ(Rows(*other, "SELECT EmployeeId FROM tblEmployees"), "1;2");
}

TEST_F(Batch, AFailureInsideLeavesTheOtherStatementsInPlace) {
  try {
    const WriteBatch batch(*connection_);
    EXPECT_EQ(Insert(2), "1");
    EXPECT_EQ(Insert(2), "80040e2f");
    Run("UPDATE tblEmployees SET Visits = 1 - EmployeeId");
    // The first row could be divided by; what was changed before the second isn't kept.
    Run("UPDATE tblEmployees SET Rate = 5");
    EXPECT_EQ(Run("UPDATE tblEmployees SET Rate = 1 / (EmployeeId - 2)"), "b");
    EXPECT_EQ(Run("DELETE FROM tblEmployees WHERE 1 / (EmployeeId - 2) < 0"), "b");
    EXPECT_EQ(Run("ALTER TABLE tblEmployees ALTER COLUMN Notes TEXT(3)"), "80040e57");
    EXPECT_EQ(Insert(3), "1");
    throw RuntimeError(error_number::kTypeMismatch);
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kTypeMismatch);
  }
  EXPECT_EQ(IdsAfterReopening(), "1;2;3");
  EXPECT_EQ(Rows("SELECT Rate, Visits FROM tblEmployees ORDER BY EmployeeId"), "5|0;5|-1;|");
}

TEST_F(Batch, AnOpenBatchIsCommittedWhenItsConnectionCloses) {
  connection_->BeginBatch();
  Insert(2);
  EXPECT_EQ(IdsAfterReopening(), "1;2");
}

TEST_F(Batch, TheSchemaChangesInsideIt) {
  connection_->BeginBatch();
  connection_->CreateTable("tblAssets", {{"AssetId", ColumnType::kLong, 0, true}});
  connection_->AddColumn("tblAssets", {"Phone", ColumnType::kText, 14});
  EXPECT_EQ(Run("ALTER TABLE tblAssets ALTER COLUMN Phone TEXT(20)"), "0");
  EXPECT_EQ(Run("INSERT INTO tblAssets (Phone) VALUES ('902-555-0114 ext')"), "1");
  EXPECT_EQ(End(), "");
  EXPECT_EQ(Rows("SELECT AssetId, Phone FROM tblAssets"), "1|902-555-0114 ext");
}

TEST_F(Batch, AStatementWaitsForALockAndThenSaysSo) {
  const std::unique_ptr<EngineConnection> other = engine_.Open(path_, kPassword);
  const WriteBatch batch(*other);
  EXPECT_EQ(Insert(2), "80004005");
  EXPECT_EQ(connection_->Errors().at(0).description,
            "The file " + path_ + " is in use by another program. Please try again.");
  EXPECT_EQ(Ids(), "1");
}

TEST_F(Batch, AFullDiskUndoesOneStatement) {
  disk_.FillAfter(0);
  EXPECT_EQ(Insert(2), "80070070");
  EXPECT_EQ(connection_->Errors().at(0).description,
            "The disk is full: the change to " + path_ + " was not written.");
  EXPECT_EQ(Ids(), "1");
  disk_.Heal();
  EXPECT_EQ(Insert(3), "1");
  EXPECT_EQ(IdsAfterReopening(), "1;3");
}

TEST_F(Batch, AFullDiskAtTheCommitUndoesTheBatch) {
  connection_->BeginBatch();
  EXPECT_EQ(Insert(2), "1");
  EXPECT_EQ(Insert(3), "1");
  disk_.FillAfter(500);
  EXPECT_EQ(End(), "80070070");
  EXPECT_NE(connection_->Errors().at(0).description.find("was undone"), std::string::npos);
  EXPECT_EQ(Ids(), "1");
  disk_.Heal();
  EXPECT_EQ(IdsAfterReopening(), "1");
}

// More than the library holds in memory goes to the disk before the commit.
TEST_F(Batch, AFullDiskInsideALargeBatchUndoesAllOfIt) {
  connection_->BeginBatch();
  disk_.FillAfter(100000);
  std::string outcome = "1";
  int id = 1;
  while (outcome == "1" && id < 100) {
    outcome = Insert(++id, 100000);
  }
  EXPECT_EQ(outcome, "80070070");
  EXPECT_NE(connection_->Errors().at(0).description.find("was undone"), std::string::npos);
  EXPECT_EQ(Ids(), "1");
  // What would follow rests on what was undone, even with room again.
  disk_.Heal();
  EXPECT_EQ(Insert(200), "80070070");
  EXPECT_EQ(End(), "80070070");
  EXPECT_EQ(Insert(201), "1");
  EXPECT_EQ(IdsAfterReopening(), "1;201");
}

TEST_F(Batch, ARowThatCantBeReadUndoesTheBatchToo) {
  Run("INSERT INTO tblTableIDs (TableName, NextId) VALUES ('tblEmployees', 1)");
  // Nothing of the second table is in memory.
  EXPECT_EQ(IdsAfterReopening(), "1");
  connection_->BeginBatch();
  EXPECT_EQ(Insert(2), "1");
  disk_.FailReads(true);
  EXPECT_EQ(Rows("SELECT NextId FROM tblTableIDs"), "80004005");
  disk_.Heal();
  EXPECT_EQ(Insert(3), "80004005");
  EXPECT_NE(connection_->Errors().at(0).description.find("was undone"), std::string::npos);
  EXPECT_EQ(End(), "80004005");
  EXPECT_EQ(IdsAfterReopening(), "1");
}

TEST_F(Batch, ACommitThatCantBeMadeSureOfIsUndone) {
  disk_.FailSync(true);
  EXPECT_EQ(Insert(2), "80004005");
  EXPECT_EQ(Ids(), "1");
  disk_.Heal();
  EXPECT_EQ(IdsAfterReopening(), "1");
}

TEST_F(Batch, AFullDiskAtClosingLosesNothing) {
  EXPECT_EQ(Insert(2), "1");
  disk_.FillAfter(0);
  connection_.reset();
  disk_.Heal();
  connection_ = engine_.Open(path_, kPassword);
  EXPECT_EQ(IdsAfterReopening(), "1;2");
  EXPECT_TRUE(connection_->CheckIntegrity().empty());
}

}  // namespace
}  // namespace lorvane

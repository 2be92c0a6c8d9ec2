#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/FaultyVfs.h"
#include "yearend/YearEndTest.h"

namespace lorvane {
namespace {

using Strings = std::vector<std::string>;

const Strings kAtRest{"Data.mdb", "LorvaneConfig.ini"};

// Makes gaps in the file.
void Litter(YearEndCompany& company) {
  const WriteBatch batch(company.Connection());
  for (int i = 0; i < 2000; ++i) {
    company.Connection().InsertRow("tblSubHistory", {{"Name", std::string(40, 'x')}});
  }
  company.Execute("DELETE FROM tblSubHistory WHERE Name = '" + std::string(40, 'x') + "'");
}

TEST(Compaction, TakesTheGapsOutAndNothingElse) {
  YearEndCompany company;
  Litter(company);
  company.Connection().Checkpoint();
  // A compaction that was killed left this.
  company.Disk().Write(company.DataFile() + "2", "half");
  ASSERT_EQ(chmod(company.DataFile().c_str(), 0640), 0);
  const std::uintmax_t before = company.Disk().Size(company.DataFile());
  const DataConnection* old = company.GetSession().gDataConn.get();
  const Compaction compaction = company.MakeYearEnd().ShowCompactDatabase_ADO();
  EXPECT_TRUE(compaction.done) << compaction.reason;
  EXPECT_EQ(compaction.bytesBefore, before);
  EXPECT_LT(compaction.bytesAfter, before / 2);
  EXPECT_EQ(company.Disk().Size(company.DataFile()), compaction.bytesAfter);
  EXPECT_NE(company.GetSession().gDataConn.get(), old);
  EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);
  EXPECT_TRUE(company.Connection().CheckIntegrity().empty());
  EXPECT_EQ(company.GetSession().gDataConn->TableIDGet("tblEmployees", "EmployeeId"), 1);
  struct stat after {};
  ASSERT_EQ(stat(company.DataFile().c_str(), &after), 0);
  EXPECT_EQ(after.st_mode & 0777U, 0640U);
  company.GetSession().gDataConn->DataClose();
  EXPECT_EQ(company.Names(), kAtRest);
}

TEST(Compaction, AFailureLeavesTheFileAsItWas) {
  constexpr const char* replace = "replace";
  for (const char* operation : {replace, "remove"}) {
    SCOPED_TRACE(operation);
    YearEndCompany company;
    company.Connection().Checkpoint();
    const auto bytes = company.Disk().Read(company.DataFile());
    company.Disk().Fail(operation, operation == replace ? "Data.mdb" : "Data.mdb2", 70);
    const Compaction compaction = company.MakeYearEnd().ShowCompactDatabase_ADO();
    EXPECT_FALSE(compaction.done);
    EXPECT_TRUE(DescribeCompaction(compaction).starts_with("Data.mdb was not compacted. 'Data.mdb"))
        << DescribeCompaction(compaction);
    EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);
    company.GetSession().gDataConn->DataClose();
    EXPECT_EQ(company.Disk().Read(company.DataFile()), bytes);
    EXPECT_EQ(company.Names(), kAtRest);
  }
}

TEST(Compaction, ADiskThatFillsUpLosesNothing) {
  constexpr std::int64_t kSteps = 16384;
  bool done = false;
  int failures = 0;
  for (std::int64_t bytes = 0; !done; bytes += kSteps) {
    SCOPED_TRACE(bytes);
    FaultyVfs disk;
    YearEndCompany company;
    disk.FillAfter(bytes);
    done = company.MakeYearEnd().ShowCompactDatabase_ADO().done;
    disk.Heal();
    ASSERT_TRUE(company.GetSession().gDataConn->DataOpen());
    EXPECT_EQ(company.Payroll(), YearEndCompany::kOpen);
    company.GetSession().gDataConn->DataClose();
    EXPECT_EQ(company.Names(), kAtRest);
    failures += done ? 0 : 1;
    ASSERT_LT(failures, 1000);
  }
  EXPECT_GT(failures, 2);
}

TEST(Compaction, AFileThatAnotherHasOpenIsLeftAlone) {
  YearEndCompany company;
  const auto other = MakeFileEngine()->Open(company.DataFile(), kDataFilePassword);
  const Compaction compaction = company.MakeYearEnd().ShowCompactDatabase_ADO();
  EXPECT_FALSE(compaction.done);
  EXPECT_NE(compaction.reason.find("in use by another program"), std::string::npos)
      << compaction.reason;
  other->Execute("UPDATE tblEmployees SET AccWages = 1 WHERE EmployeeId = 4");
  EXPECT_EQ(company.First("SELECT AccWages FROM tblEmployees WHERE EmployeeId = 4"), "1");
}

TEST(Compaction, WithoutADataFileThereIsJustAClosedConnection) {
  YearEndCompany company;
  for (const std::string& source : {std::string(), company.Folder(), company.ConfigFile()}) {
    SCOPED_TRACE(source);
    company.GetSession().gDataConn->DataSource = source;
    EXPECT_FALSE(company.MakeYearEnd().ShowCompactDatabase_ADO().done);
    EXPECT_FALSE(company.GetSession().gDataConn->IsOpen());
    EXPECT_EQ(company.GetSession().gDataConn->DataSource, source);
  }
  company.GetSession().gDataConn->DataSource = company.DataFile();
  EXPECT_TRUE(company.GetSession().gDataConn->DataOpen());
}

TEST(Compaction, IsToldInBytes) {
  EXPECT_EQ(DescribeCompaction({true, "Data.mdb", 1234567, 100, ""}),
            "Compacted Data.mdb: 1,234,567 bytes before, 100 bytes after");
  EXPECT_EQ(DescribeCompaction({true, "Data.mdb", 123456, 1000, ""}),
            "Compacted Data.mdb: 123,456 bytes before, 1,000 bytes after");
}

}  // namespace
}  // namespace lorvane

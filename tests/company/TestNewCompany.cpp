#include <gtest/gtest.h>

#include <filesystem>

#include "company/modNewCompany.h"
#include "support/TestCompany.h"

namespace lorvane {
namespace {

TEST(NewCompany, WritesItsConfigurationInTheOrderThatReadersRelyOn) {
  TestCompany company;
  const std::string folder = company.Folder() + "/b\xC3\xA9";
  std::filesystem::create_directory(folder);
  CreateConfigFile(company.Context(), folder + "/Books.mdb");
  EXPECT_EQ(company.GetSession().gConfigFile, folder);
  EXPECT_EQ(company.GetSession().gDataConn->DataSource, folder);
  DiskFiles files;
  EXPECT_EQ(files.Read(folder + "/LorvaneConfig.ini"),
            "[DataBase]\r\nPath=" + folder +
                "\r\nFile=Books.mdb\r\n[Environment]\r\nToolBar=-1\r\nStatusBar=-1\r\nSetup=0\r\n"
                "DataFiles=-1\r\nCompany=0\r\nSubContractors=0\r\nEmployees=0\r\nName=None\r\n"
                "[Assessment]\r\nLastEntry=1/5/2026\r\nDefault=0\r\nIndustry=1\r\nCurrentYear=0\r\n"
                "[Remittance]\r\nPreview=-1\r\nCopies=1\r\nExport=-1\r\nNav=-1\r\nProgress=-1\r\n"
                "Refresh=-1\r\nSearch=-1\r\nZoom=-1\r\nFrom=1/5/2026\r\nTo=1/5/2026\r\n");
  CreateConfigFile(company.Context(), company.Folder() + "/nowhere/Data.mdb");
  EXPECT_EQ(company.Services().NextBox(), "");
}

TEST(NewCompany, NeverTakesAnothersPlace) {
  TestCompany company;
  DiskFiles files;
  const std::string taken = company.Folder() + "/Taken.mdb";
  files.Write(taken, "another company");
  EXPECT_FALSE(CopyTemplateDatabase(company.Context(), taken));
  EXPECT_EQ(company.Services().NextBox(),
            "\"Company\" \"The company you have entered already exists.\\n"
            "Please enter a new company name before proceeding.\"");
  EXPECT_EQ(files.Read(taken), "another company");

  const std::string nowhere = company.Folder() + "/nowhere/Data.mdb";
  EXPECT_FALSE(CopyTemplateDatabase(company.Context(), nowhere));
  EXPECT_TRUE(company.Services().NextBox().starts_with("\"Error\" \"53\\n'" + nowhere));

  const std::string other = company.Folder() + "/Other.mdb";
  company.GetSession().programFolder = company.Folder();
  EXPECT_FALSE(CopyTemplateDatabase(company.Context(), other));
  EXPECT_TRUE(company.Services().NextBox().starts_with("\"Error\" \"53\\n'" + company.Folder() +
                                                       "/Resource/Template/Data.mdb'"));
  EXPECT_FALSE(files.Exists(other));
}

TEST(NewCompany, HasBothItsFilesOrNone) {
  TestCompany company;
  const std::string folder = company.Folder() + "/new";
  const std::string file = folder + "/Data.mdb";
  // What can't be written over stands where the configuration file belongs.
  std::filesystem::create_directories(folder + "/LorvaneConfig.ini/full");
  EXPECT_FALSE(MakeCompanyFiles(company.Context(), file));
  EXPECT_TRUE(company.Services().NextBox().starts_with("\"Error\" \"75\\n'" + folder +
                                                       "/LorvaneConfig.ini'"));
  EXPECT_FALSE(DiskFiles().Exists(file));
  EXPECT_EQ(company.GetSession().gConfigFile, company.ConfigFile());
  EXPECT_EQ(company.GetSession().gDataConn->DataSource, company.DataFile());
  std::filesystem::remove_all(folder + "/LorvaneConfig.ini");
  EXPECT_TRUE(MakeCompanyFiles(company.Context(), file));
  EXPECT_TRUE(OpenNewCompany(company.Context(), file));
  EXPECT_EQ(company.Ini("Database", "File"), "Data.mdb");
  EXPECT_EQ(company.First("SELECT Count(*) FROM tblCompany"), "0");
}

}  // namespace
}  // namespace lorvane

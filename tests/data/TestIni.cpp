#include <gtest/gtest.h>

#include <filesystem>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/cINI.h"
#include "support/TemporaryFolder.h"

namespace lorvane {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kFile =
    "; Harbour Fish\r\n"
    "[DataBase]\r\n"
    "Path=C:\\Books\r\n"
    "\r\n"
    "[Assessment]\r\n"
    "LastEntry=1/5/2026\r\n"
    "; the view\r\n"
    " Default = 1 \r\n"
    "Name=\"  Caf\xC3\xA9 = Bar \"\r\n"
    "nonsense\r\n"
    "Empty=\r\n"
    "\r\n"
    "; the end\r\n"
    "[Remittance]\r\n"
    "Copies=1\r\n"
    "[assessment]\r\n"
    "Second=2\r\n";

/// The disk, with failures at will.
class FaultyFiles : public DiskFiles {
 public:
  bool unreadable = false;
  bool unwritable = false;

  std::optional<std::string> Read(const std::string& path) override {
    return unreadable ? std::nullopt : DiskFiles::Read(path);
  }
  void Write(const std::string& path, std::string_view content) override {
    if (unwritable) {
      throw RuntimeError(error_number::kDiskFull);
    }
    DiskFiles::Write(path, content);
  }
};

class Ini : public testing::Test {
 protected:
  cINI Open() { return {files_, path_}; }
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& defaultValue = "none") {
    return Open().KeyGet(section, key, defaultValue);
  }
  void Save(const std::string& section, const std::string& key, const std::string& value) {
    Open().KeySave(value, section, key);
  }
  void Put(std::string_view content) { files_.Write(path_, content); }
  std::string Content() { return files_.Read(path_).value_or("(no file)"); }

  TemporaryFolder folder_;
  FaultyFiles files_;
  std::string path_ = folder_.File("LorvaneConfig.ini");
};

TEST_F(Ini, FindsValuesWithoutRegardToCase) {
  Put(kFile);
  struct Case {
    const char* section;
    const char* key;
    const char* value;
  };
  constexpr Case cases[] = {{"DataBase", "Path", "C:\\Books"},
                            {"DATABASE", "PATH", "C:\\Books"},
                            {"Assessment", "default", "1"},
                            {"ASSESSMENT", "Name", "  Caf\xC3\xA9 = Bar "},
                            {"Assessment", "Empty", ""},
                            {"Assessment", "nonsense", "none"},
                            {"Assessment", "Copies", "none"},
                            {"Assessment", "Second", "none"},
                            {"Environment", "Name", "none"},
                            {"Assessment", "; the view", "none"},
                            {"Remittance", "[assessment]", "none"},
                            {"", "", "none"}};
  for (const Case& row : cases) {
    EXPECT_EQ(Get(row.section, row.key), row.value) << row.section << " " << row.key;
  }
}

TEST_F(Ini, WritesWhereTheKeyBelongsAndKeepsTheRest) {
  Put(kFile);
  Save("database", "path", "D:\\");
  Save("Database", "YE", "1");
  Save("Assessment", "Industry", "2");
  Save("Environment", "Name", "Tern\r\nLtd");
  EXPECT_EQ(Content(),
            "; Harbour Fish\r\n[DataBase]\r\nPath=D:\\\r\nYE=1\r\n\r\n[Assessment]\r\n"
            "LastEntry=1/5/2026\r\n; the view\r\n Default = 1 \r\n"
            "Name=\"  Caf\xC3\xA9 = Bar \"\r\nnonsense\r\nEmpty=\r\nIndustry=2\r\n\r\n; the end\r\n"
            "[Remittance]\r\nCopies=1\r\n[assessment]\r\nSecond=2\r\n"
            "[Environment]\r\nName=Tern Ltd\r\n");
}

TEST_F(Ini, KeepsThePropertiesForNA) {
  cINI ini = Open();
  ini.Section = "Assessment";
  ini.KeyName = "Default";
  ini.KeyValue = "1";
  ini.KeySave("NA", "NA", "NA");
  EXPECT_EQ(Content(), "[Assessment]\r\nDefault=1\r\n");
  ini.KeySave("", "NA", "Industry");
  EXPECT_EQ(ini.KeyName, "Industry");
  EXPECT_EQ(Content(), "[Assessment]\r\nDefault=1\r\nIndustry=\r\n");
  EXPECT_EQ(ini.KeyGet("NA", "Missing", "NA"), "NA");
  EXPECT_EQ(ini.KeyValue, "NA");
  EXPECT_TRUE(ini.Exists("NA", "whatever"));
  EXPECT_FALSE(ini.Exists("Environment", "Default"));
  EXPECT_EQ(ini.Section, "Environment");
}

TEST_F(Ini, GivesASectionsLinesInFileOrder) {
  Put(kFile);
  const Lines lines{"LastEntry=1/5/2026", "Default=1", "Name=\"  Caf\xC3\xA9 = Bar \"", "nonsense",
                    "Empty="};
  EXPECT_EQ(Open().SectionGet("assessment"), lines);
  EXPECT_EQ(Open().SectionGet("Environment"), Lines());
  EXPECT_EQ(Open().SectionGet(""), Lines());
  cINI ini = Open();
  ini.Section = "Remittance";
  EXPECT_EQ(ini.SectionGet(""), Lines{"Copies=1"});
}

TEST_F(Ini, CutsValuesAndSectionsByCharacters) {
  std::string long_;
  for (int i = 0; i < 300; ++i) {
    long_ += "\xC3\xA9";
  }
  Save("Claim", "Name", long_);
  EXPECT_EQ(Get("Claim", "Name"), Left(long_, 255));
  EXPECT_EQ(Get("Claim", "None", long_), Left(long_, 255));
  for (int i = 0; i < 10; ++i) {
    Save("Claim", "Line" + std::to_string(i), long_);
  }
  const Lines lines = Open().SectionGet("Claim");
  // "Name=" and the text are 305 characters, "Line0=" and the text 306, a separator behind each.
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[5], "Line4=" + long_);
  EXPECT_EQ(lines[6], "Line5=" + Left(long_, 2048 - 306 - 5 * 307 - 6));
}

TEST_F(Ini, ReadsAnyBytes) {
  struct Case {
    const char* content;
    const char* value;
  };
  const Case cases[] = {
      {"[Environment]\nName=Caf\xE9 \x80\n", "Caf\xC3\xA9 \xE2\x82\xAC"},
      {"\xEF\xBB\xBF[Environment]\r\nName=Tern", "Tern"},
      {"[Environment\r\nName=Tern\r\n", "Tern"},
      {"Name=loose\r\n[\r\n[]\r\n]\r\n=x\r\n[ environment ]\r\n\r\r\nNAME = Tern\r\r\n", "Tern"},
      {"", "none"},
      {"[Environment]", "none"},
      {"\r\n\r\n", "none"}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.content);
    Put(row.content);
    EXPECT_EQ(Get("Environment", "Name"), row.value);
    Save("Environment", "Company", "0");
    EXPECT_EQ(Get("Environment", "Name"), row.value);
    EXPECT_EQ(Get("Environment", "Company"), "0");
  }
}

TEST_F(Ini, FindsAnotherSpellingAndWritesItsOwn) {
  files_.Write(folder_.File("lorvaneCONFIG.INI"), "[Environment]\nName=Tern\n");
  EXPECT_EQ(Get("Environment", "Name"), "Tern");
  Save("Environment", "Company", "0");
  EXPECT_EQ(Content(), "[Environment]\r\nName=Tern\r\nCompany=0\r\n");
  EXPECT_FALSE(files_.Exists(folder_.File("lorvaneCONFIG.INI")));
}

TEST_F(Ini, AMissingFileReadsAsDefaultsAndIsMadeByWriting) {
  EXPECT_EQ(Get("Environment", "Name"), "none");
  EXPECT_FALSE(Open().Exists("Environment", "Name"));
  EXPECT_FALSE(files_.Exists(path_));
  Save("Environment", "Name", "Tern");
  EXPECT_EQ(Content(), "[Environment]\r\nName=Tern\r\n");
  path_ = folder_.File("nowhere/LorvaneConfig.ini");
  Save("Environment", "Name", "Tern");
  EXPECT_EQ(Get("Environment", "Name"), "none");
}

TEST_F(Ini, AFailureLosesNothing) {
  Put(kFile);
  files_.unwritable = true;
  Save("Environment", "Name", "Tern");
  EXPECT_EQ(Content(), kFile);
  files_.unwritable = false;
  files_.unreadable = true;
  EXPECT_EQ(Get("DataBase", "Path"), "none");
  Save("Environment", "Name", "Tern");
  files_.unreadable = false;
  EXPECT_EQ(Content(), kFile);
}

}  // namespace
}  // namespace lorvane

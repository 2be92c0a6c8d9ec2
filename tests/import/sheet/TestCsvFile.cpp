#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "basic/RuntimeError.h"
#include "import/sheet/CsvFile.h"

namespace lorvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using Rows = std::vector<std::vector<std::string>>;

Rows CellsOf(const CsvFile& file) {
  Rows rows;
  for (const CsvRow& row : file.Rows()) {
    rows.push_back(row.cells);
  }
  return rows;
}

TEST(CsvFile, ReadsWhatSpreadsheetsWrite) {
  const struct {
    const char* what;
    std::string bytes;
    Rows rows;
  } cases[] = {
      {"commas", "id,amount\n7,12.50\n", {{"id", "amount"}, {"7", "12.50"}}},
      {"last line not ended", "7,1\n8,2", {{"7", "1"}, {"8", "2"}}},
      {"an empty last cell at the end", "7,1\n8,", {{"7", "1"}, {"8", ""}}},
      {"semicolons, decimal commas", "7;12,50\n8;13,25\n", {{"7", "12,50"}, {"8", "13,25"}}},
      {"tabs", "7\tx, y\n\t9\n", {{"7", "x, y"}, {"", "9"}}},
      {"a tab behind a quoted cell", "\"a\"\t\"b\"\n\"c\"\td\n", {{"a", "b"}, {"c", "d"}}},
      {"a quoted separator", "\"Doe, Jane\",5\nRoe,6\n", {{"Doe, Jane", "5"}, {"Roe", "6"}}},
      {"amounts with separators", "7,\"1,234.50\"\n8,\"2\"\n", {{"7", "1,234.50"}, {"8", "2"}}},
      {"doubled quotes", "\"5\"\" pipe\",\"\"\"x\"\"\"\n", {{"5\" pipe", "\"x\""}}},
      {"a quote inside a cell", "5\" pipe,1\n", {{"5\" pipe", "1"}}},
      {"blanks round cells", " 7 , \"a b \" ,x y\n", {{"7", "a b ", "x y"}}},
      {"CR LF", "7,1\r\n8,\"a\r\nb\"\r\n", {{"7", "1"}, {"8", "a\nb"}}},
      {"CR alone", "7,1\r8,2\r", {{"7", "1"}, {"8", "2"}}},
      {"empty lines", "\n7,1\n\n  \n8,2\n\n", {{"7", "1"}, {"8", "2"}}},
      {"rows of empty cells", ",\n\"\",1\n", {{"", ""}, {"", "1"}}},
      {"ragged rows", "a,b,c\n1\n1,2\n", {{"a", "b", "c"}, {"1"}, {"1", "2"}}},
      {"one column", "7\n8\n", {{"7"}, {"8"}}},
      {"nothing", "", {}},
      {"UTF-8 with a mark", "\xEF\xBB\xBFid,n\n1,\xC3\x89lise\n", {{"id", "n"}, {"1", "Élise"}}},
      {"Windows-1252",
       "1,\xC9lise\n2,O\x92"
       "Brien\n",
       {{"1", "Élise"}, {"2", "O’Brien"}}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(CellsOf(CsvFile::Parse(one.bytes, "x.csv")), one.rows) << one.what;
  }
}

TEST(CsvFile, KeepsBlanksWhenWished) {
  EXPECT_EQ(CellsOf(CsvFile::Parse(" a , \"b, c\"\n  \n\"d \" , ,e\n", "x.csv", CsvBlanks::kKept)),
            (Rows{{" a ", " \"b", " c\""}, {"  "}, {"d ", " ", "e"}}));
}

TEST(CsvFile, TellsTheLineOfARow) {
  const CsvFile file = CsvFile::Parse("id,name\r\n\r\n7,\"a\nb\nc\"\r\n8,d\r\n", "/home/x/p.csv");
  std::vector<std::string> places;
  for (const CsvRow& row : file.Rows()) {
    places.push_back(file.PlaceOf(row));
  }
  EXPECT_THAT(places, ElementsAre("p.csv, line 1", "p.csv, line 3", "p.csv, line 6"));
  EXPECT_EQ(file.Rows()[2].Cell(1), "d");
  EXPECT_EQ(file.Rows()[2].Cell(2), "");
}

void ExpectRefusal(const std::string& bytes, const std::string& sentence) {
  try {
    const CsvFile file = CsvFile::Parse(bytes, "p.csv");
    ADD_FAILURE() << "accepted " << file.Rows().size() << " rows; expected: " << sentence;
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kPathFileAccess);
    EXPECT_THAT(error.Description(), HasSubstr(sentence));
  }
}

TEST(CsvFile, RefusesWhatIsNoCsv) {
  ExpectRefusal("7,1\n8,\"open\n9,2\n", "p.csv, line 2");
  ExpectRefusal("7,1\n8,\"open\"\"\n", "p.csv, line 2");
  ExpectRefusal("7,1\n\"a\nb\",1\n8,\"a\"b\n", "p.csv, line 4");
  ExpectRefusal(std::string("PK\x03\x04\0\0", 6), "is no CSV file");
}

class CsvFileOnDisk : public ::testing::Test {
 protected:
  CsvFileOnDisk() { std::filesystem::create_directories(folder_); }
  ~CsvFileOnDisk() override { std::filesystem::remove_all(folder_); }

  static std::int32_t ErrorOfReading(const std::string& path) {
    try {
      static_cast<void>(CsvFile::Read(path));
      return 0;
    } catch (const RuntimeError& error) {
      EXPECT_THAT(error.Description(), HasSubstr(path));
      return error.Number();
    }
  }

  const std::filesystem::path folder_ =
      std::filesystem::path(::testing::TempDir()) / ("lorvane-csv-" + std::to_string(getpid()));
};

TEST_F(CsvFileOnDisk, ReadsAFileOrSaysWhyNot) {
  const std::string path = (folder_ / "payments.csv").string();
  EXPECT_EQ(ErrorOfReading(path), error_number::kFileNotFound);
  EXPECT_EQ(ErrorOfReading(folder_.string()), error_number::kPathFileAccess);

  std::ofstream(path) << "id,amount\n7,12.50\n";
  EXPECT_EQ(CellsOf(CsvFile::Read(path)), (Rows{{"id", "amount"}, {"7", "12.50"}}));

  std::filesystem::resize_file(path, CsvFile::kMaxBytes + 1);
  EXPECT_EQ(ErrorOfReading(path), error_number::kPathFileAccess);
}

}  // namespace
}  // namespace lorvane

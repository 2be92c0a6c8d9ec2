#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "basic/RuntimeError.h"
#include "import/sheet/NumberFormat.h"
#include "import/sheet/Spreadsheet.h"
#include "support/TemporaryFolder.h"
#include "support/sheets/OldWorkbook.h"
#include "support/sheets/WorkbookFiles.h"

namespace lorvane {
namespace {

using testing::HasSubstr;

class SpreadsheetFile : public testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return folder_.File("sheet"); }
  void Put(const std::string& bytes) const { std::ofstream(Path(), std::ios::binary) << bytes; }
  [[nodiscard]] std::string Bytes() const {
    std::ifstream file(Path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // The sentence that refuses the file; empty when it is taken.
  [[nodiscard]] std::string Refusal() const {
    try {
      static_cast<void>(ReadSpreadsheet(Path()));
      return {};
    } catch (const RuntimeError& error) {
      return error.Description();
    }
  }

  TemporaryFolder folder_;
};

// The cells of a row as texts, with the kind of those that aren't texts.
std::string RowText(const Spreadsheet& sheet, std::size_t row) {
  constexpr const char* kKinds[] = {"", "", "number ", "flag ", "date ", "error "};
  std::string text;
  for (std::size_t column = 1; column <= sheet.ColumnCount(row); ++column) {
    const SheetCell& cell = sheet.Cell(row, column);
    text += (column == 1 ? "" : "|") + (kKinds[cell.index()] + CellText(cell));
  }
  return text;
}

TEST_F(SpreadsheetFile, ReadsWhatAnOfficeProgramWrites) {
  WriteXlsx(Path(), {{"046-454-286", 46454286.0, 0.1, true, DateTime{2026, 1, 5, 10, 30, 0}},
                     {},
                     {"Côté", std::monostate(), "<&>\n ", 1e21}});
  const Spreadsheet sheet = ReadSpreadsheet(Path());
  EXPECT_EQ(sheet.RowCount(), 3U);
  EXPECT_EQ(RowText(sheet, 1),
            "046-454-286|number 46454286|number 0.1|flag True|date 1/5/2026 10:30:00 AM");
  EXPECT_EQ(sheet.ColumnCount(2), 0U);
  EXPECT_EQ(RowText(sheet, 3), "Côté||<&>\n |number 1e+21");
  EXPECT_TRUE(IsBlank(sheet.Cell(9, 9)));
}

TEST_F(SpreadsheetFile, ReadsEveryKindOfCellOfTheSheetInFront) {
  WriteZip(Path(),
           XlsxEntries({"<row><c><v>1</v></c></row>",
                        "<row r=\"2\"><c r=\"B2\" t=\"s\"><v>0</v></c><c t=\"s\"><v>1</v></c>"
                        "<c t=\"s\"><v>77</v></c><c t=\"inlineStr\"><is><t>in</t><rPh><t>x</t>"
                        "</rPh></is></c></row><row><c t=\"str\"><f>A1</f><v>worked out</v></c>"
                        "<c><f>1+1</f><v>2</v></c><c t=\"e\"><v>#N/A</v></c><c t=\"b\"><v>0</v></c>"
                        "<c t=\"d\"><v>2026-01-05T00:00:00Z</v></c></row>"
                        "<row><c s=\"1\"><v>46027</v></c><c s=\"2\"><v>46027</v></c><c s=\"3\"><v>"
                        "46027</v></c><c s=\"1\"><v>1e300</v></c><c r=\"ZZZ4\"><v>5</v></c></row>"},
                       1));
  const Spreadsheet sheet = ReadSpreadsheet(Path());
  EXPECT_EQ(RowText(sheet, 1), "");
  EXPECT_EQ(RowText(sheet, 2), "|Tern & Sons|Réjean||in");
  EXPECT_EQ(RowText(sheet, 3), "worked out|number 2|error #N/A|flag False|date 1/5/2026");
  EXPECT_EQ(RowText(sheet, 4), "date 1/5/2026|number 46027|date 1/5/2026|number 1e+300");
}

TEST_F(SpreadsheetFile, ReadsOpenDocuments) {
  const std::string cells =
      "<table:table-column table:number-columns-repeated=\"9\"/><table:table-header-rows>"
      "<table:table-row table:number-rows-repeated=\"2\"><table:table-cell "
      "office:value-type=\"string\"><text:p>a<text:s "
      "text:c=\"2\"/><text:span>b</text:span></text:p>"
      "<text:p>c</text:p><office:annotation><text:p>note</text:p></office:annotation>"
      "</table:table-cell><table:covered-table-cell/><table:table-cell "
      "table:number-columns-repeated=\"2\" office:value-type=\"currency\" office:value=\"12.5\">"
      "<text:p>$12.50</text:p></table:table-cell></table:table-row></table:table-header-rows>"
      "<table:table-row><table:table-cell office:value-type=\"boolean\" "
      "office:boolean-value=\"true\"/><table:table-cell office:value-type=\"date\" "
      "office:date-value=\"2026-01-05T10:30:00.5\"/><table:table-cell office:value-type=\"float\" "
      "office:value=\"3\" table:formula=\"of:=1+2\"/><table:table-cell "
      "office:value-type=\"string\" calcext:value-type=\"error\"><text:p>#N/A</text:p>"
      "</table:table-cell><table:table-cell table:number-columns-repeated=\"16000\"/>"
      "</table:table-row><table:table-row table:number-rows-repeated=\"1048500\">"
      "<table:table-cell/></table:table-row>";
  const std::string other =
      "<table:table-row><table:table-cell office:value-type=\"float\" "
      "office:value=\"1\"/></table:table-row>";
  WriteZip(Path(), OdsEntries({other, cells}, "Sheet2"));
  const Spreadsheet sheet = ReadSpreadsheet(Path());
  EXPECT_EQ(RowText(sheet, 1), "a  b\nc||number 12.5|number 12.5");
  EXPECT_EQ(RowText(sheet, 2), RowText(sheet, 1));
  EXPECT_EQ(RowText(sheet, 3), "flag True|date 1/5/2026 10:30:00 AM|number 3|error #N/A");
  EXPECT_EQ(sheet.RowCount(), 3U);
  WriteZip(Path(), OdsEntries({other, cells}, "Gone"));
  EXPECT_EQ(RowText(ReadSpreadsheet(Path()), 1), "number 1");
}

TEST_F(SpreadsheetFile, ReadsOldWorkbooks) {
  OldWorkbook book;
  book.AddText(0, 0, "other sheet");
  book.NextSheet();
  book.AddText(0, 0, "C\xF4t\xE9");
  book.AddNumber(0, 1, 46454286);
  book.AddNumber(0, 2, 46027, true);
  book.AddFormula(0, 3, 0.25);
  book.AddFormula(0, 4, "worked out");
  book.AddFlag(2, 0, true);
  book.AddOwnText(3, 0, "na\xEFve");
  book.AddError(3, 1, 0x07);
  book.AddError(3, 2, 0x2A);
  // A whole number, one in hundredths, and the upper half of a double, in hundredths as well.
  book.AddPacked(4, 0, (7U << 2U) | 2U);
  book.AddPacked(4, 1, (static_cast<std::uint32_t>(-12345) << 2U) | 3U);
  book.AddPacked(4, 2, 0x40290000U);
  book.AddPacked(4, 3, 0x40290001U);
  book.Front = 1;
  book.Write(Path());
  const Spreadsheet sheet = ReadSpreadsheet(Path());
  EXPECT_EQ(RowText(sheet, 1), "Côté|number 46454286|date 1/5/2026|number 0.25|worked out");
  EXPECT_EQ(RowText(sheet, 3), "flag True");
  EXPECT_EQ(RowText(sheet, 4), "naïve|error #DIV/0!|error #N/A");
  EXPECT_EQ(RowText(sheet, 5), "number 7|number -123.45|number 12.5|number 0.125");
  EXPECT_EQ(sheet.RowCount(), 5U);
}

TEST_F(SpreadsheetFile, ReadsTextWithItsEmptyLines) {
  Put("\xEF\xBB\xBF"
      "007;\"Two\nlines\"\r\n\r\n;behind\r\n");
  const Spreadsheet sheet = ReadSpreadsheet(Path());
  EXPECT_EQ(RowText(sheet, 1), "007|Two\nlines");
  EXPECT_EQ(RowText(sheet, 2), "");
  EXPECT_EQ(RowText(sheet, 3), "|behind");
}

TEST_F(SpreadsheetFile, RefusesOtherFilesWithAReason) {
  OldWorkbook locked;
  locked.AddText(0, 0, "secret");
  locked.Protected = true;
  const std::string package("E\0n\0c\0r\0y\0p\0t\0e\0d\0P\0a\0c\0k\0a\0g\0e\0", 32);
  struct Case {
    std::string bytes;
    const char* reason;
  };
  const Case cases[] = {
      {"<html><table><tr><td>1</td></tr></table>", "is no spreadsheet"},
      {"%PDF-1.7 ...", "is no spreadsheet"},
      {"PK\x03\x04 and no more", "is damaged"},
      {CompoundFileOf("Book", "1995"), "is of an old kind"},
      {CompoundFileOf("WordDocument", "Dear Sir"), "is no spreadsheet"},
      {CompoundFileOf("EncryptedPackage", package), "is protected by a password"},
      {locked.Bytes(), "is protected by a password"},
      {OldWorkbook().Bytes().substr(0, 1000), "is damaged"},
      {std::string("a\0b", 3), "is no CSV file"},
  };
  for (const Case& one : cases) {
    Put(one.bytes);
    EXPECT_THAT(Refusal(), HasSubstr(one.reason)) << one.bytes.substr(0, 20);
  }
  std::filesystem::remove(Path());
  EXPECT_THAT(Refusal(), HasSubstr("There is no file"));
  std::filesystem::create_directory(Path());
  EXPECT_THAT(Refusal(), HasSubstr("can't be read"));
}

TEST_F(SpreadsheetFile, RefusesArchivesThatAreNoSheet) {
  const ZipEntries good = XlsxEntries({"<row><c><v>1</v></c></row>"});
  const auto with = [&](const std::string& name, const std::string& bytes) {
    ZipEntries changed = good;
    std::erase_if(changed, [&](const auto& entry) { return entry.first == name; });
    if (!bytes.empty()) {
      changed.emplace_back(name, bytes);
    }
    WriteZip(Path(), changed);
    return Refusal();
  };
  EXPECT_THAT(with("xl/workbook.xml", ""), HasSubstr("is no spreadsheet"));
  EXPECT_THAT(with("xl/workbook.xml", "<workbook/>"), HasSubstr("has no sheet"));
  EXPECT_THAT(with("xl/worksheets/sheet1.xml", ""), HasSubstr("is damaged"));
  EXPECT_THAT(with("xl/worksheets/sheet1.xml", "<worksheet><row>"), HasSubstr("sheet1.xml"));
  EXPECT_THAT(with("xl/sharedStrings.xml",
                   "<!DOCTYPE sst [<!ENTITY a \"aaaa\">]><sst><si><t>&a;</t></si></sst>"),
              HasSubstr("is damaged"));
  EXPECT_THAT(with("mimetype", "application/vnd.oasis.opendocument.text"),
              HasSubstr("is no spreadsheet"));
  EXPECT_EQ(with("xl/styles.xml", ""), "");

  ZipEntries locked = OdsEntries({""});
  locked.emplace_back("META-INF/manifest.xml", "<manifest:encryption-data/>");
  WriteZip(Path(), locked);
  EXPECT_THAT(Refusal(), HasSubstr("is protected by a password"));
}

// Small files that unpack to a great deal.
TEST_F(SpreadsheetFile, RefusesFilesMadeToFillTheMemory) {
  const std::string blanks(170U << 20U, ' ');
  WriteZip(Path(), XlsxEntries({blanks}));
  EXPECT_LT(std::filesystem::file_size(Path()), 1U << 20U);
  EXPECT_THAT(Refusal(), HasSubstr("unpacks to more"));

  WriteZip(Path(), XlsxEntries({"<row r=\"" + std::string(20U << 20U, '1') + "\"/>"}));
  EXPECT_THAT(Refusal(), HasSubstr("is damaged"));

  WriteZip(Path(), OdsEntries({"<table:table-row table:number-rows-repeated=\"1048576\">"
                               "<table:table-cell table:number-columns-repeated=\"256\" "
                               "office:value-type=\"float\" office:value=\"1\"/>"
                               "</table:table-row>"}));
  EXPECT_THAT(Refusal(), HasSubstr("holds more than"));
  WriteZip(Path(), XlsxEntries({"<row r=\"99999999999\"><c><v>1</v></c></row>"}));
  EXPECT_THAT(Refusal(), HasSubstr("holds more than"));
}

// A download that broke off, anywhere.
TEST_F(SpreadsheetFile, RefusesEveryTruncatedWorkbook) {
  WriteXlsx(Path(), {{"046-454-286", "LeBlanc"}});
  const std::string whole = Bytes();
  OldWorkbook old;
  old.AddText(0, 0, "LeBlanc");
  for (const std::string& bytes : {whole, old.Bytes()}) {
    for (std::size_t length = 16; length < bytes.size(); length += 97) {
      Put(bytes.substr(0, length));
      const std::string refusal = Refusal();
      EXPECT_NE(refusal, "") << length;
    }
  }
}

TEST(NumberFormat, KnowsDatesByTheirCodes) {
  for (const char* code : {"m/d/yyyy", "[$-F800]dddd\\, mmmm dd", "[h]:mm", "[ss]", "\"at\" h"}) {
    EXPECT_TRUE(IsDateFormat(code)) << code;
  }
  for (const char* code : {"General", "0.00", "#,##0 \"days\"", "[Red]0.00", "0\\d", "_d0", "*y0",
                           "", "\"", "[", "\\", "0.00E+00"}) {
    EXPECT_FALSE(IsDateFormat(code)) << code;
  }
  EXPECT_TRUE(IsBuiltInDateFormat(14));
  EXPECT_FALSE(IsBuiltInDateFormat(44));
}

}  // namespace
}  // namespace lorvane

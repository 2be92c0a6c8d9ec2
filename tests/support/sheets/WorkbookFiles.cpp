#include "support/sheets/WorkbookFiles.h"

#include <xlsxwriter.h>
#include <zip.h>

#include <stdexcept>

namespace lorvane {
namespace {

class CellWriter {
 public:
  CellWriter(lxw_worksheet* sheet, lxw_format* dates) : sheet_(sheet), dates_(dates) {}

  void MoveTo(std::size_t row, std::size_t column) {
    row_ = static_cast<lxw_row_t>(row);
    column_ = static_cast<lxw_col_t>(column);
  }
  void operator()(std::monostate) const {}
  void operator()(const std::string& text) const {
    worksheet_write_string(sheet_, row_, column_, text.c_str(), nullptr);
  }
  void operator()(double number) const {
    worksheet_write_number(sheet_, row_, column_, number, nullptr);
  }
  void operator()(bool flag) const {
    worksheet_write_boolean(sheet_, row_, column_, flag ? 1 : 0, nullptr);
  }
  void operator()(const DateTime& date) const {
    worksheet_write_number(sheet_, row_, column_, SerialOf(date), dates_);
  }
  void operator()(const SheetError& /*error*/) const {
    throw std::logic_error("errors come of formulas alone");
  }

 private:
  lxw_worksheet* sheet_;
  lxw_format* dates_;
  lxw_row_t row_ = 0;
  lxw_col_t column_ = 0;
};

constexpr const char* kMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr const char* kLinks =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
constexpr const char* kPackage = "http://schemas.openxmlformats.org/package/2006/relationships";

std::string Relationship(const std::string& id, const std::string& type,
                         const std::string& target) {
  return "<Relationship Id=\"" + id + "\" Type=\"" + kLinks + "/" + type + "\" Target=\"" + target +
         "\"/>";
}

std::string Relationships(const std::string& each) {
  return "<Relationships xmlns=\"" + std::string(kPackage) + "\">" + each + "</Relationships>";
}

}  // namespace

void WriteXlsx(const std::string& path, const SheetRows& rows) {
  lxw_workbook* book = workbook_new(path.c_str());
  lxw_format* dates = workbook_add_format(book);
  format_set_num_format(dates, "yyyy\\-mm\\-dd hh:mm");
  CellWriter writer(workbook_add_worksheet(book, nullptr), dates);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      writer.MoveTo(row, column);
      std::visit(writer, rows[row][column]);
    }
  }
  if (workbook_close(book) != LXW_NO_ERROR) {
    throw std::runtime_error(path + " can't be written.");
  }
}

void WriteZip(const std::string& path, const ZipEntries& entries) {
  zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  for (const auto& [name, bytes] : entries) {
    zip_source_t* source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
    zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
  }
  if (zip_close(archive) != 0) {
    throw std::runtime_error(path + " can't be written.");
  }
}

ZipEntries XlsxEntries(const std::vector<std::string>& sheets, int front) {
  const std::string root = std::string(" xmlns=\"") + kMain + "\" xmlns:r=\"" + kLinks + "\"";
  std::string list;
  std::string links = Relationship("rT", "sharedStrings", "sharedStrings.xml") +
                      Relationship("rS", "styles", "/xl/styles.xml");
  ZipEntries entries;
  for (std::size_t place = 0; place < sheets.size(); ++place) {
    const std::string number = std::to_string(place + 1);
    list.append("<sheet name=\"S").append(number).append("\" sheetId=\"").append(number);
    list.append("\" r:id=\"r").append(number).append("\"/>");
    links += Relationship("r" + number, "worksheet", "../xl/worksheets/sheet" + number + ".xml");
    entries.emplace_back(
        "xl/worksheets/sheet" + number + ".xml",
        "<worksheet" + root + "><sheetData>" + sheets[place] + "</sheetData></worksheet>");
  }
  entries.emplace_back("_rels/.rels",
                       Relationships(Relationship("r1", "officeDocument", "xl/workbook.xml")));
  entries.emplace_back("xl/_rels/workbook.xml.rels", Relationships(links));
  entries.emplace_back("xl/workbook.xml", "<workbook" + root +
                                              "><bookViews><workbookView activeTab=\"" +
                                              std::to_string(front) + "\"/></bookViews><sheets>" +
                                              list + "</sheets></workbook>");
  entries.emplace_back("xl/sharedStrings.xml",
                       "<sst" + root +
                           "><si><t>Tern &amp; Sons</t></si><si><r><t>Ré</t></r><r><t>jean</t></r>"
                           "<rPh><t>spoken</t></rPh></si></sst>");
  entries.emplace_back(
      "xl/styles.xml",
      "<styleSheet" + root +
          "><numFmts><numFmt numFmtId=\"164\" formatCode=\"0.00&quot; days&quot;\"/>"
          "<numFmt numFmtId=\"165\" formatCode=\"[$-409]d\\-mmm;@\"/></numFmts>"
          "<cellStyleXfs><xf numFmtId=\"14\"/></cellStyleXfs><cellXfs>"
          "<xf numFmtId=\"0\"/><xf numFmtId=\"14\"/><xf numFmtId=\"164\"/>"
          "<xf numFmtId=\"165\"/></cellXfs></styleSheet>");
  return entries;
}

ZipEntries OdsEntries(const std::vector<std::string>& tables, const std::string& front) {
  constexpr const char* kOffice =
      " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
      " xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\""
      " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
      " xmlns:config=\"urn:oasis:names:tc:opendocument:xmlns:config:1.0\""
      " xmlns:calcext=\"urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0\"";
  std::string content;
  for (std::size_t place = 0; place < tables.size(); ++place) {
    content += "<table:table table:name=\"Sheet" + std::to_string(place + 1) + "\">" +
               tables[place] + "</table:table>";
  }
  ZipEntries entries{
      {"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
      {"content.xml", std::string("<office:document-content") + kOffice +
                          "><office:body><office:spreadsheet>" + content +
                          "</office:spreadsheet></office:body></office:document-content>"}};
  if (!front.empty()) {
    entries.emplace_back("settings.xml", std::string("<office:document-settings") + kOffice +
                                             "><config:config-item config:name=\"ActiveTable\">" +
                                             front +
                                             "</config:config-item></office:document-settings>");
  }
  return entries;
}

}  // namespace lorvane

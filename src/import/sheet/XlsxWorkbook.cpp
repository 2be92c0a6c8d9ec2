#include "import/sheet/XlsxWorkbook.h"

#include <algorithm>
#include <map>
#include <set>

#include "basic/Text.h"
#include "import/sheet/NumberFormat.h"
#include "import/sheet/SheetFailure.h"
#include "import/sheet/SheetNumbers.h"
#include "import/sheet/Spreadsheet.h"
#include "import/sheet/XmlReader.h"

namespace lorvane {
namespace {

struct Relation {
  std::string type;
  std::string target;
};

class RelationsHandler : public XmlHandler {
 public:
  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name == "Relationship") {
      relations[std::string(attributes.Get("Id"))] = {std::string(attributes.Get("Type")),
                                                      std::string(attributes.Get("Target"))};
    }
  }
  void End(std::string_view /*name*/) override {}

  std::map<std::string, Relation, std::less<>> relations;
};

// The entry that a relation names, which is told from the folder of the part that has it.
std::string EntryOf(const std::string& folder, const std::string& target) {
  if (target.starts_with('/')) {
    return target.substr(1);
  }
  std::vector<std::string> path;
  for (const std::string& step : Split(folder + target, '/')) {
    if (step == ".." && !path.empty()) {
      path.pop_back();
    } else if (step != "..") {
      path.push_back(step);
    }
  }
  return Join(path, "/");
}

// What a part refers to.
class Relations {
 public:
  Relations(ZipFile& archive, const std::string& part) : folder_(GetPathPart(part)) {
    const std::string entry = folder_ + "_rels/" + GetNamePart(part) + ".rels";
    if (archive.Has(entry)) {
      ReadXml(archive, entry, handler_);
    }
  }

  // Empty when there is none.
  [[nodiscard]] std::string EntryOfId(std::string_view id) const {
    const auto found = handler_.relations.find(id);
    return found == handler_.relations.end() ? "" : EntryOf(folder_, found->second.target);
  }
  [[nodiscard]] std::string EntryOfType(std::string_view ending) const {
    for (const auto& [id, relation] : handler_.relations) {
      if (relation.type.ends_with(ending)) {
        return EntryOf(folder_, relation.target);
      }
    }
    return {};
  }

 private:
  std::string folder_;
  RelationsHandler handler_;
};

class WorkbookHandler : public XmlHandler {
 public:
  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name == "sheet") {
      sheets.emplace_back(attributes.Get("id"));
    } else if (name == "workbookView" && !seenView_) {
      seenView_ = true;
      front = PartNumber<std::size_t>(attributes.Get("activeTab")).value_or(0);
    } else if (name == "workbookPr") {
      countsFrom1904 = PartFlag(attributes.Get("date1904"));
    }
  }
  void End(std::string_view /*name*/) override {}

  // The relation of each sheet.
  std::vector<std::string> sheets;
  std::size_t front = 0;
  bool countsFrom1904 = false;

 private:
  bool seenView_ = false;
};

class TextsHandler : public XmlHandler {
 public:
  explicit TextsHandler(const std::string& path) : path_(path) {}

  void Start(std::string_view name, const XmlAttributes& /*attributes*/) override {
    if (name == "si") {
      texts.emplace_back();
    }
    inText_ = name == "t" && !inReading_;
    inReading_ = inReading_ || name == "rPh";
  }
  void End(std::string_view name) override {
    inText_ = false;
    inReading_ = inReading_ && name != "rPh";
  }
  void Text(std::string_view text) override {
    if (!inText_ || texts.empty()) {
      return;
    }
    bytes_ += text.size();
    if (bytes_ > Spreadsheet::kMaxTextBytes || texts.size() > Spreadsheet::kMaxCells) {
      RefuseSheet(path_, "holds more text than can be taken from a workbook.");
    }
    texts.back() += text;
  }

  std::vector<std::string> texts;

 private:
  const std::string& path_;
  std::size_t bytes_ = 0;
  bool inText_ = false;
  // How a text is pronounced, where that is told, is no part of it.
  bool inReading_ = false;
};

class StylesHandler : public XmlHandler {
 public:
  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name == "numFmt") {
      const std::optional<int> number = PartNumber<int>(attributes.Get("numFmtId"));
      if (number && IsDateFormat(attributes.Get("formatCode"))) {
        dateFormats_.insert(*number);
      }
    } else if (name == "cellXfs") {
      inCellStyles_ = true;
    } else if (name == "xf" && inCellStyles_) {
      const int number = PartNumber<int>(attributes.Get("numFmtId")).value_or(0);
      dates.push_back(IsBuiltInDateFormat(number) || dateFormats_.contains(number));
    }
  }
  void End(std::string_view name) override { inCellStyles_ = inCellStyles_ && name != "cellXfs"; }

  std::vector<bool> dates;

 private:
  std::set<int> dateFormats_;
  bool inCellStyles_ = false;
};

std::string WorkbookPart(ZipFile& archive) {
  std::string part = Relations(archive, "").EntryOfType("/officeDocument");
  if (part.ends_with(".bin")) {
    RefuseSheet(archive.Path(), "is a binary workbook. Please save it as .xlsx.");
  }
  if (part.empty() || !archive.Has(part)) {
    RefuseSheet(archive.Path(), "is no spreadsheet.");
  }
  return part;
}

}  // namespace

XlsxWorkbook ReadXlsxWorkbook(ZipFile& archive) {
  const std::string part = WorkbookPart(archive);
  const Relations relations(archive, part);
  WorkbookHandler sheets;
  ReadXml(archive, part, sheets);
  XlsxWorkbook workbook;
  workbook.countsFrom1904 = sheets.countsFrom1904;
  if (!sheets.sheets.empty()) {
    workbook.sheet =
        relations.EntryOfId(sheets.sheets[sheets.front < sheets.sheets.size() ? sheets.front : 0]);
  }
  if (workbook.sheet.empty()) {
    RefuseSheet(archive.Path(), "has no sheet of cells.");
  }
  if (const std::string entry = relations.EntryOfType("/sharedStrings"); archive.Has(entry)) {
    TextsHandler texts(archive.Path());
    ReadXml(archive, entry, texts);
    workbook.texts = std::move(texts.texts);
  }
  if (const std::string entry = relations.EntryOfType("/styles"); archive.Has(entry)) {
    StylesHandler styles;
    ReadXml(archive, entry, styles);
    workbook.datesByStyle = std::move(styles.dates);
  }
  return workbook;
}

}  // namespace lorvane

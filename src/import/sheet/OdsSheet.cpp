#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "import/sheet/SheetFailure.h"
#include "import/sheet/SheetNumbers.h"
#include "import/sheet/SheetReaders.h"
#include "import/sheet/XmlReader.h"

namespace lorvane {
namespace {

// The settings name the sheet in front.
class FrontHandler : public XmlHandler {
 public:
  void Start(std::string_view name, const XmlAttributes& attributes) override {
    inFront_ = name == "config-item" && attributes.Get("name") == "ActiveTable";
  }
  void End(std::string_view /*name*/) override { inFront_ = false; }
  void Text(std::string_view text) override {
    constexpr std::size_t kLongestName = 1000;
    if (inFront_ && front.size() < kLongestName) {
      front += text;
    }
  }

  std::string front;

 private:
  bool inFront_ = false;
};

class ContentHandler : public XmlHandler {
 public:
  // Without a name of the sheet in front the first one is taken.
  explicit ContentHandler(std::string front) : front_(std::move(front)) {}

  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name == "table") {
      // A table inside a cell is no sheet.
      if (++tableDepth_ == 1) {
        StartSheet(attributes.Get("table:1.0|name"));
      }
    } else if (!InSheet()) {
      return;
    } else if (name == "table-row") {
      rowsAlike_ = Repeated(attributes.Get("number-rows-repeated"));
      row_ += 1;
      column_ = 1;
    } else if (name == "table-cell" || name == "covered-table-cell") {
      StartCell(attributes);
    } else if (name == "annotation") {
      ++noteDepth_;
    } else {
      StartInText(name, attributes);
    }
  }

  void End(std::string_view name) override {
    if (name == "table") {
      --tableDepth_;
    } else if (!InSheet()) {
      return;
    } else if (name == "table-row") {
      FinishRow();
    } else if (name == "table-cell" || name == "covered-table-cell") {
      FinishCell();
    } else if (name == "annotation") {
      --noteDepth_;
    } else if (name == "p") {
      inParagraph_ = false;
    }
  }

  void Text(std::string_view text) override {
    if (InSheet() && inParagraph_ && noteDepth_ == 0) {
      Append(text);
    }
  }

  [[nodiscard]] bool Found() const { return taken_; }

  Spreadsheet sheet;

 private:
  [[nodiscard]] bool InSheet() const { return taking_ && tableDepth_ == 1; }

  void StartSheet(std::string_view name) {
    taking_ = !taken_ && (front_.empty() || name == front_);
    taken_ = taken_ || taking_;
  }

  static std::size_t Repeated(std::string_view text) {
    return std::clamp(PartNumber<std::size_t>(text).value_or(1), std::size_t{1},
                      Spreadsheet::kMaxRows);
  }

  void StartCell(const XmlAttributes& attributes) {
    cellsAlike_ = Repeated(attributes.Get("number-columns-repeated"));
    type_ = attributes.Get("office:1.0|value-type");
    isError_ = attributes.Get("calcext:1.0|value-type") == "error";
    text_.clear();
    paragraphs_ = 0;
    value_ = attributes.Get(type_ == "boolean"  ? "office:1.0|boolean-value"
                            : type_ == "date"   ? "office:1.0|date-value"
                            : type_ == "string" ? "office:1.0|string-value"
                                                : "office:1.0|value");
  }

  void StartInText(std::string_view name, const XmlAttributes& attributes) {
    if (noteDepth_ > 0) {
      return;
    }
    if (name == "p") {
      inParagraph_ = true;
      if (paragraphs_++ > 0) {
        Append("\n");
      }
    } else if (inParagraph_ && name == "s") {
      constexpr std::size_t kMostBlanks = 1000;
      Append(std::string(std::min(Repeated(attributes.Get("text:1.0|c")), kMostBlanks), ' '));
    } else if (inParagraph_ && name == "tab") {
      Append("\t");
    } else if (inParagraph_ && name == "line-break") {
      Append("\n");
    }
  }

  void Append(std::string_view text) {
    if (text_.size() < Spreadsheet::kMaxTextBytes) {
      text_ += text;
    }
  }

  [[nodiscard]] SheetCell Cell() const {
    if (isError_) {
      return SheetError{text_};
    }
    if (type_ == "boolean") {
      return PartFlag(value_);
    }
    if (type_ == "date") {
      constexpr std::size_t kUpToSeconds = 19;
      if (const auto date = ParseIsoDate(
              std::string_view(value_).substr(0, std::min(value_.size(), kUpToSeconds)))) {
        return *date;
      }
    } else if (type_ == "float" || type_ == "percentage" || type_ == "currency") {
      if (const auto number = PartNumber<double>(value_)) {
        return *number;
      }
    } else if (type_ == "string" && !value_.empty()) {
      return value_;
    }
    return text_;
  }

  void FinishCell() {
    const SheetCell cell = Cell();
    if (!IsBlank(cell)) {
      const std::size_t end = std::min(column_ + cellsAlike_, Spreadsheet::kMaxColumns + 1);
      for (std::size_t column = column_; column < end; ++column) {
        sheet.SetCell(row_, column, cell);
      }
    }
    column_ = std::min(column_ + cellsAlike_, Spreadsheet::kMaxColumns + 1);
  }

  // The rows alike follow the first one of them.
  void FinishRow() {
    const std::size_t columns = sheet.ColumnCount(row_);
    const std::size_t last = std::min(row_ + rowsAlike_ - 1, Spreadsheet::kMaxRows + 1);
    for (std::size_t copy = row_ + 1; columns > 0 && copy <= last; ++copy) {
      for (std::size_t column = 1; column <= columns; ++column) {
        sheet.SetCell(copy, column, SheetCell(sheet.Cell(row_, column)));
      }
    }
    row_ = last;
  }

  std::string front_;
  bool taking_ = false;
  bool taken_ = false;
  int tableDepth_ = 0;
  int noteDepth_ = 0;
  std::size_t row_ = 0;
  std::size_t rowsAlike_ = 1;
  std::size_t column_ = 1;
  std::size_t cellsAlike_ = 1;
  std::string type_;
  std::string value_;
  bool isError_ = false;
  std::string text_;
  int paragraphs_ = 0;
  bool inParagraph_ = false;
};

std::string FrontSheet(ZipFile& archive) {
  FrontHandler handler;
  if (archive.Has("settings.xml")) {
    ReadXml(archive, "settings.xml", handler);
  }
  return handler.front;
}

}  // namespace

Spreadsheet ReadOds(ZipFile& archive) {
  if (archive.ReadShort("META-INF/manifest.xml").find("encryption-data") != std::string::npos) {
    RefuseSheet(archive.Path(), "is protected by a password.");
  }
  ContentHandler content(FrontSheet(archive));
  ReadXml(archive, "content.xml", content);
  if (content.Found()) {
    return std::move(content.sheet);
  }
  // The settings name a sheet that isn't there.
  ContentHandler first("");
  ReadXml(archive, "content.xml", first);
  return std::move(first.sheet);
}

}  // namespace lorvane

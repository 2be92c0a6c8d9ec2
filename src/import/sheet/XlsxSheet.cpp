#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "import/sheet/SheetNumbers.h"
#include "import/sheet/SheetReaders.h"
#include "import/sheet/XlsxWorkbook.h"
#include "import/sheet/XmlReader.h"

namespace lorvane {
namespace {

// The column of a cell's name, "BC12", counted from 1; nothing when the name has no letters.
std::optional<std::size_t> ColumnOf(std::string_view name) {
  constexpr std::size_t kLetters = 26;
  std::size_t column = 0;
  for (const char letter : name) {
    if (letter < 'A' || letter > 'Z' || column > Spreadsheet::kMaxColumns) {
      break;
    }
    column = column * kLetters + static_cast<std::size_t>(letter - 'A' + 1);
  }
  return column == 0 ? std::nullopt : std::optional(column);
}

class SheetHandler : public XmlHandler {
 public:
  explicit SheetHandler(const XlsxWorkbook& workbook) : workbook_(workbook) {}

  void Start(std::string_view name, const XmlAttributes& attributes) override {
    if (name == "row") {
      // Rows and cells without a place follow the one before.
      row_ = PartNumber<std::size_t>(attributes.Get("r")).value_or(row_ + 1);
      column_ = 0;
    } else if (name == "c") {
      column_ = ColumnOf(attributes.Get("r")).value_or(column_ + 1);
      type_ = attributes.Get("t");
      style_ = PartNumber<std::size_t>(attributes.Get("s")).value_or(0);
      value_.clear();
    }
    inValue_ = (name == "v" || name == "t") && !inReading_;
    inReading_ = inReading_ || name == "rPh";
  }
  void End(std::string_view name) override {
    inValue_ = false;
    inReading_ = inReading_ && name != "rPh";
    if (name == "c") {
      sheet.SetCell(row_, column_, Cell());
    }
  }
  void Text(std::string_view text) override {
    if (inValue_ && value_.size() < Spreadsheet::kMaxTextBytes) {
      value_ += text;
    }
  }

  Spreadsheet sheet;

 private:
  [[nodiscard]] SheetCell Cell() {
    if (type_ == "s") {
      const std::optional<std::size_t> place = PartNumber<std::size_t>(value_);
      return place && *place < workbook_.texts.size() ? SheetCell(workbook_.texts[*place])
                                                      : SheetCell();
    }
    if (type_ == "b") {
      return value_.empty() ? SheetCell() : SheetCell(PartFlag(value_));
    }
    if (type_ == "e") {
      return SheetError{value_};
    }
    if (type_ == "d") {
      const std::optional<DateTime> date = ParseIsoDate(
          std::string_view(value_).substr(0, std::min(value_.size(), std::size_t{19})));
      return date ? SheetCell(*date) : SheetCell(std::move(value_));
    }
    if (type_ == "str" || type_ == "inlineStr") {
      return std::move(value_);
    }
    return Number();
  }
  [[nodiscard]] SheetCell Number() {
    const std::optional<double> number = PartNumber<double>(value_);
    if (!number) {
      return std::move(value_);
    }
    if (style_ < workbook_.datesByStyle.size() && workbook_.datesByStyle[style_]) {
      return CellOfSerial(*number, workbook_.countsFrom1904);
    }
    return *number;
  }

  const XlsxWorkbook& workbook_;
  std::size_t row_ = 0;
  std::size_t column_ = 0;
  std::string type_;
  std::size_t style_ = 0;
  std::string value_;
  bool inValue_ = false;
  bool inReading_ = false;
};

}  // namespace

Spreadsheet ReadXlsx(ZipFile& archive) {
  const XlsxWorkbook workbook = ReadXlsxWorkbook(archive);
  SheetHandler handler(workbook);
  ReadXml(archive, workbook.sheet, handler);
  return std::move(handler.sheet);
}

}  // namespace lorvane

#include <algorithm>
#include <array>
#include <bit>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "import/sheet/CompoundFile.h"
#include "import/sheet/NumberFormat.h"
#include "import/sheet/SheetFailure.h"
#include "import/sheet/SheetReaders.h"
#include "import/sheet/XlsRecords.h"

namespace lorvane {
namespace {

constexpr std::size_t kBehindPlace = 6;

SheetError ErrorOf(unsigned code) {
  constexpr std::array kErrors{std::pair(0x00U, "#NULL!"),  std::pair(0x07U, "#DIV/0!"),
                               std::pair(0x0FU, "#VALUE!"), std::pair(0x17U, "#REF!"),
                               std::pair(0x1DU, "#NAME?"),  std::pair(0x24U, "#NUM!")};
  const auto* const found = std::find_if(kErrors.begin(), kErrors.end(),
                                         [&](const auto& error) { return error.first == code; });
  return {found == kErrors.end() ? "#N/A" : found->second};
}

// Numbers of few digits are packed into four bytes: the upper part of a double, or a whole number,
// either of them times a hundred or not.
double Unpacked(std::uint32_t packed) {
  constexpr double kHundred = 100;
  const double number =
      (packed & 2U) != 0 ? std::bit_cast<std::int32_t>(packed) >> 2
                         : std::bit_cast<double>(static_cast<std::uint64_t>(packed & ~3U) << 32U);
  return (packed & 1U) != 0 ? number / kHundred : number;
}

struct XlsWorkbook {
  std::vector<std::string> texts;
  std::vector<bool> datesByStyle;
  bool countsFrom1904 = false;
  // Where the sheet in front begins.
  std::size_t sheet = 0;
};

// The records in front of the sheets.
class WorkbookReader {
 public:
  explicit WorkbookReader(const std::string& path) : path_(path) {}

  [[nodiscard]] XlsWorkbook Read(ByteView stream) {
    XlsRecords records(stream, 0);
    XlsRecord record = records.Next();
    constexpr unsigned kOf1997 = 0x0600;
    if (record.kind != xls_record::kBegin || record.Data().Two(0) != kOf1997) {
      RefuseSheet(path_, "is of an old kind that can't be read. Please save it as .xlsx.");
    }
    while (record.kind != xls_record::kEnd) {
      record = records.Next();
      Take(record);
    }
    if (sheets_.empty()) {
      RefuseSheet(path_, "has no sheet of cells.");
    }
    const auto inFront = sheets_.find(front_);
    book_.sheet = inFront == sheets_.end() ? sheets_.begin()->second : inFront->second;
    return std::move(book_);
  }

 private:
  void Take(const XlsRecord& record) {
    switch (record.kind) {
      case xls_record::kPassword:
        RefuseSheet(path_, "is protected by a password.");
      case xls_record::kCountsFrom1904:
        book_.countsFrom1904 = record.Data().Two(0) == 1;
        break;
      case xls_record::kWindow:
        front_ = record.Data().Two(10);
        break;
      case xls_record::kFormat:
        if (IsDateFormat(XlsTexts(record, 2).Next())) {
          dateFormats_.insert(record.Data().Two(0));
        }
        break;
      case xls_record::kStyle: {
        const unsigned format = record.Data().Two(2);
        book_.datesByStyle.push_back(IsBuiltInDateFormat(static_cast<int>(format)) ||
                                     dateFormats_.contains(format));
        break;
      }
      case xls_record::kSheet:
        // Charts and modules have no cells.
        if (record.Data().One(5) == 0) {
          sheets_[count_] = record.Data().Four(0);
        }
        ++count_;
        break;
      case xls_record::kTexts:
        ReadTexts(record);
        break;
      default:
        break;
    }
  }

  void ReadTexts(const XlsRecord& record) {
    XlsTexts texts(record, 8);
    for (std::uint32_t count = record.Data().Four(4); count > 0; --count) {
      book_.texts.push_back(texts.Next());
    }
  }

  const std::string& path_;
  XlsWorkbook book_;
  std::set<unsigned> dateFormats_;
  // By their number among all.
  std::map<unsigned, std::size_t> sheets_;
  unsigned count_ = 0;
  unsigned front_ = 0;
};

class SheetReader {
 public:
  explicit SheetReader(const XlsWorkbook& book) : book_(book) {}

  [[nodiscard]] Spreadsheet Read(ByteView stream) {
    XlsRecords records(stream, book_.sheet);
    // A chart among the cells brings a beginning and an end of its own.
    int depth = 0;
    do {
      const XlsRecord record = records.Next();
      depth += record.kind == xls_record::kBegin ? 1 : record.kind == xls_record::kEnd ? -1 : 0;
      if (depth == 1) {
        Take(record);
      }
    } while (depth > 0);
    return std::move(sheet_);
  }

 private:
  void Take(const XlsRecord& record) {
    const ByteView& data = record.Data();
    switch (record.kind) {
      case xls_record::kNumber:
        Put(data, Number(data.Double(kBehindPlace), data.Two(4)));
        break;
      case xls_record::kPackedNumber:
        Put(data, Number(Unpacked(data.Four(kBehindPlace)), data.Two(4)));
        break;
      case xls_record::kPackedNumbers:
        PutPackedNumbers(data);
        break;
      case xls_record::kTextNumber:
        Put(data, book_.texts.at(data.Four(kBehindPlace)));
        break;
      case xls_record::kText:
      case xls_record::kRichText:
        Put(data, XlsTexts(record, kBehindPlace).Next());
        break;
      case xls_record::kFlagOrError:
        Put(data, FlagOrError(data.One(kBehindPlace), data.One(kBehindPlace + 1) != 0));
        break;
      case xls_record::kFormula:
        PutFormula(data);
        break;
      case xls_record::kTextOfFormula:
        sheet_.SetCell(row_, column_, XlsTexts(record, 0).Next());
        break;
      default:
        break;
    }
  }

  void Put(const ByteView& data, SheetCell cell) {
    sheet_.SetCell(data.Two(0) + std::size_t{1}, data.Two(2) + std::size_t{1}, std::move(cell));
  }

  [[nodiscard]] SheetCell Number(double number, std::size_t style) const {
    if (style < book_.datesByStyle.size() && book_.datesByStyle[style]) {
      return CellOfSerial(number, book_.countsFrom1904);
    }
    return number;
  }

  static SheetCell FlagOrError(unsigned value, bool isError) {
    return isError ? SheetCell(ErrorOf(value)) : SheetCell(value != 0);
  }

  void PutPackedNumbers(const ByteView& data) {
    constexpr std::size_t kEach = 6;
    const std::size_t row = data.Two(0) + std::size_t{1};
    std::size_t column = data.Two(2) + std::size_t{1};
    for (std::size_t at = 4; at + kEach + 2 <= data.Size(); at += kEach) {
      sheet_.SetCell(row, column++, Number(Unpacked(data.Four(at + 2)), data.Two(at)));
    }
  }

  // A value that is no number says so in its last two bytes; a text follows in a record of its own.
  void PutFormula(const ByteView& data) {
    constexpr unsigned kNoNumber = 0xFFFF;
    constexpr unsigned kFlag = 1;
    constexpr unsigned kError = 2;
    row_ = data.Two(0) + std::size_t{1};
    column_ = data.Two(2) + std::size_t{1};
    const unsigned kind = data.One(kBehindPlace);
    if (data.Two(kBehindPlace + 6) != kNoNumber) {
      Put(data, Number(data.Double(kBehindPlace), data.Two(4)));
    } else if (kind == kFlag || kind == kError) {
      Put(data, FlagOrError(data.One(kBehindPlace + 2), kind == kError));
    }
  }

  const XlsWorkbook& book_;
  Spreadsheet sheet_;
  // The formula whose text comes next.
  std::size_t row_ = 0;
  std::size_t column_ = 0;
};

Spreadsheet ReadStreams(const std::string& path, const CompoundFile& file) {
  // A workbook of the newer kind that is protected comes in this wrapping.
  if (file.Stream("EncryptedPackage")) {
    RefuseSheet(path, "is protected by a password.");
  }
  const std::optional<std::string> stream = file.Stream("Workbook");
  if (!stream) {
    RefuseSheet(path, file.Stream("Book")
                          ? "is of an old kind that can't be read. Please save it as .xlsx."
                          : "is no spreadsheet.");
  }
  const XlsWorkbook book = WorkbookReader(path).Read(ByteView(*stream));
  return SheetReader(book).Read(ByteView(*stream));
}

}  // namespace

Spreadsheet ReadXls(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  try {
    return ReadStreams(path, CompoundFile(bytes));
  } catch (const std::out_of_range&) {
    RefuseSheet(path, "is damaged or incomplete.");
  }
}

}  // namespace lorvane

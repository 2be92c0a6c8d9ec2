#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/modDataAccess.h"
#include "reports/ReportExports.h"

namespace lorvane {
namespace {

[[noreturn]] void FailToMake(const std::string& reason) {
  throw RuntimeError(error_number::kDeviceError, "The workbook can't be made: " + reason + ".");
}

/// A folder of its own, gone at the end: the library writes to files alone.
class PrivateFolder {
 public:
  PrivateFolder() {
    std::error_code failure;
    path_ = (std::filesystem::temp_directory_path(failure) / "lorvane.XXXXXX").string();
    if (failure || mkdtemp(path_.data()) == nullptr) {
      FailToMake("there is no room for temporary files");
    }
  }
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;
  ~PrivateFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::string& Path() { return path_; }

 private:
  std::string path_;
};

/// How cells look, by the format of their column and the kind of their row.
class Formats {
 public:
  explicit Formats(lxw_workbook* workbook) : workbook_(workbook) {
    title_ = Make(nullptr, true);
    constexpr double kTitleSize = 14;
    format_set_font_size(title_, kTitleSize);
    heading_ = Make(nullptr, true);
    format_set_text_wrap(heading_);
    format_set_bottom(heading_, LXW_BORDER_THIN);
    for (std::size_t bold = 0; bold < kWeights; ++bold) {
      for (std::size_t format = 0; format < kFormats; ++format) {
        cells_[bold][format] = Make(kNumberFormats[format], bold == 1);
      }
    }
  }

  [[nodiscard]] lxw_format* Title() const { return title_; }
  [[nodiscard]] lxw_format* Heading() const { return heading_; }
  [[nodiscard]] lxw_format* Of(ReportFormat format, bool bold) const {
    return cells_[bold ? 1 : 0][static_cast<std::size_t>(format)];
  }

 private:
  static constexpr std::size_t kWeights = 2;
  static constexpr std::size_t kFormats = 4;
  static constexpr std::array<const char*, kFormats> kNumberFormats{nullptr, "#,##0.00", nullptr,
                                                                    "yyyy-mm-dd"};

  lxw_format* Make(const char* numberFormat, bool bold) {
    lxw_format* format = workbook_add_format(workbook_);
    if (numberFormat != nullptr) {
      format_set_num_format(format, numberFormat);
    }
    if (bold) {
      format_set_bold(format);
    }
    return format;
  }

  lxw_workbook* workbook_;
  lxw_format* title_ = nullptr;
  lxw_format* heading_ = nullptr;
  std::array<std::array<lxw_format*, kFormats>, kWeights> cells_{};
};

/// Writes a table to a sheet of its own.
class SheetWriter {
 public:
  SheetWriter(lxw_worksheet* sheet, const Formats& formats) : sheet_(sheet), formats_(formats) {}

  void Write(const ReportDocument& report, const ReportSection& section) {
    WriteLine(report.title, formats_.Title());
    for (const std::string& heading : report.headings) {
      WriteLine(heading, nullptr);
    }
    if (!section.heading.empty()) {
      WriteLine(section.heading, formats_.Of(ReportFormat::kText, true));
    }
    ++row_;
    WriteTable(section);
    ++row_;
    for (const std::string& note : report.notes) {
      WriteLine(note, nullptr);
    }
    if (report.orientation == PageOrientation::kLandscape) {
      worksheet_set_landscape(sheet_);
    }
    worksheet_fit_to_pages(sheet_, 1, 0);
  }

 private:
  void WriteLine(const std::string& text, lxw_format* format) {
    worksheet_write_string(sheet_, row_++, 0, text.c_str(), format);
  }

  void WriteTable(const ReportSection& section) {
    constexpr double kPointsOfCharacter = 5.5;
    constexpr double kLeastWidth = 8;
    for (std::size_t column = 0; column < section.columns.size(); ++column) {
      const auto place = static_cast<lxw_col_t>(column);
      worksheet_set_column(
          sheet_, place, place,
          std::max(kLeastWidth, section.columns[column].width / kPointsOfCharacter), nullptr);
    }
    if (HasColumnHeadings(section)) {
      for (std::size_t column = 0; column < section.columns.size(); ++column) {
        worksheet_write_string(sheet_, row_, static_cast<lxw_col_t>(column),
                               section.columns[column].heading.c_str(), formats_.Heading());
      }
      worksheet_repeat_rows(sheet_, row_, row_);
      ++row_;
    }
    for (const ReportRow& row : section.rows) {
      if (row.kind != ReportRow::Kind::kGroup) {
        WriteRow(section, row);
      }
    }
  }

  void WriteRow(const ReportSection& section, const ReportRow& row) {
    const bool sums = row.kind != ReportRow::Kind::kDetail;
    for (std::size_t column = 0; column < section.columns.size(); ++column) {
      const auto place = static_cast<lxw_col_t>(column);
      lxw_format* format = formats_.Of(section.columns[column].format, sums);
      const std::string text = ShownText(section, row, column);
      const bool labelled = column == section.labelColumn && !row.label.empty();
      if (!labelled && WriteValue(row.cells[column], section.columns[column], place, format)) {
        continue;
      }
      if (!text.empty()) {
        worksheet_write_string(sheet_, row_, place, text.c_str(), format);
      }
    }
    ++row_;
  }

  // False for what is written as text.
  bool WriteValue(const Value& value, const ReportColumn& column, lxw_col_t place,
                  lxw_format* format) {
    if (IsNull(value) || column.format == ReportFormat::kText) {
      return false;
    }
    if (const DateTime* date = std::get_if<DateTime>(&value)) {
      // Days from 1 March 1900 on are counted alike; spreadsheets don't know those before.
      constexpr DateTime kFirstAlike{1900, 3, 1};
      if (*date < kFirstAlike) {
        return false;
      }
      worksheet_write_number(sheet_, row_, place, SerialOf(*date), format);
      return true;
    }
    worksheet_write_number(sheet_, row_, place, NullToDouble(value), format);
    return true;
  }

  lxw_worksheet* sheet_;
  const Formats& formats_;
  lxw_row_t row_ = 0;
};

// A sheet's name has at most 31 characters, and none of []:*?/\.
std::string SheetName(const ReportSection& section, const ReportDocument& report,
                      std::set<std::string>& taken) {
  constexpr std::size_t kMost = 31;
  constexpr std::size_t kMostBeforeNumber = 26;
  std::string name = section.heading.empty() ? report.title : section.heading;
  std::replace_if(
      name.begin(), name.end(),
      [](char letter) { return std::string_view("[]:*?/\\'").find(letter) != std::string::npos; },
      ' ');
  name = Left(name, kMost);
  for (int number = 2; !taken.insert(ToLower(name)).second; ++number) {
    name = Left(name, kMostBeforeNumber) + " " + std::to_string(number);
  }
  return name;
}

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string ReportAsXlsx(const ReportDocument& report) {
  PrivateFolder folder;
  const std::string path = folder.Path() + "/report.xlsx";
  lxw_workbook_options options{};
  options.tmpdir = folder.Path().data();
  lxw_workbook* workbook = workbook_new_opt(path.c_str(), &options);
  if (workbook == nullptr) {
    FailToMake("there is no memory for it");
  }
  std::string title = report.title;
  std::string author = report.author;
  lxw_doc_properties properties{};
  properties.title = title.data();
  properties.author = author.data();
  workbook_set_properties(workbook, &properties);
  const Formats formats(workbook);
  std::set<std::string> taken;
  for (const ReportSection& section : report.sections) {
    const std::string name = SheetName(section, report, taken);
    SheetWriter(workbook_add_worksheet(workbook, name.c_str()), formats).Write(report, section);
  }
  if (const lxw_error error = workbook_close(workbook); error != LXW_NO_ERROR) {
    FailToMake(lxw_strerror(error));
  }
  return ReadWhole(path);
}

}  // namespace lorvane

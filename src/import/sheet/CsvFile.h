#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// What becomes of the blanks round an unquoted cell; those in quotes stay. Where they are kept, a
/// quote behind a blank is a part of the text, as in spreadsheets.
enum class CsvBlanks { kTrimmed, kKept };

/// One row of a CSV file, as texts.
struct CsvRow {
  /// The line of the file on which the row begins, counted from 1.
  std::size_t line = 0;
  /// The row's number in the sheet, counted from 1: empty lines count, a line break inside a quoted
  /// cell doesn't.
  std::size_t number = 0;
  std::vector<std::string> cells;

  /// The cell at a place counted from 0; empty behind the row's end.
  [[nodiscard]] std::string_view Cell(std::size_t place) const;
};

/// A CSV file as people get it from spreadsheets and payroll services: UTF-8 with or without a
/// mark, else Windows-1252; comma, semicolon or tab between the cells, whichever the file uses;
/// quoted cells; any line ends. Lines of nothing but blanks are left out of the rows.
class CsvFile {
 public:
  /// Larger files are refused: no payroll comes near.
  static constexpr std::size_t kMaxBytes = 32U << 20U;

  /// Reads a file. Raises 53 when there is none and 75 when it can't be read, is too large, is no
  /// text or has a quote that doesn't end where a cell ends; the sentence names the file and the
  /// line.
  [[nodiscard]] static CsvFile Read(const std::string& path,
                                    CsvBlanks blanks = CsvBlanks::kTrimmed);
  /// The same for a file's bytes; `name` stands for the file in error sentences.
  [[nodiscard]] static CsvFile Parse(std::string_view bytes, const std::string& name,
                                     CsvBlanks blanks = CsvBlanks::kTrimmed);

  [[nodiscard]] const std::vector<CsvRow>& Rows() const { return rows_; }
  /// "payments.csv, line 12": how an error sentence names a row.
  [[nodiscard]] std::string PlaceOf(const CsvRow& row) const;

 private:
  std::string name_;
  std::vector<CsvRow> rows_;
};

}  // namespace lorvane

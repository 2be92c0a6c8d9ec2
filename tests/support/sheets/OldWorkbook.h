#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// Makes a workbook of the binary kind (.xls), record by record.
class OldWorkbook {
 public:
  /// Places count from 0, as in the records.
  void AddNumber(int row, int column, double number, bool isDate = false);
  /// Characters of Latin-1 alone.
  void AddText(int row, int column, const std::string& latin1);
  void AddFlag(int row, int column, bool flag);
  /// A text that stands in its cell, not among the workbook's shared ones.
  void AddOwnText(int row, int column, const std::string& latin1);
  /// By the code that cells know: 0x07 for a division by zero.
  void AddError(int row, int column, unsigned code);
  /// A number as four bytes: see the last two bits.
  void AddPacked(int row, int column, std::uint32_t packed);
  /// A formula with its value.
  void AddFormula(int row, int column, double value);
  void AddFormula(int row, int column, const std::string& latin1);
  /// Ends the sheet; what is added from here on stands in another.
  void NextSheet();

  /// The number of the sheet in front.
  int Front = 0;
  /// Marks the workbook as encrypted.
  bool Protected = false;

  void Write(const std::string& path) const;
  [[nodiscard]] std::string Bytes() const;

 private:
  [[nodiscard]] std::string Stream() const;

  std::vector<std::string> texts_;
  std::vector<std::string> sheets_{std::string()};
};

/// A compound file with one stream of that name.
[[nodiscard]] std::string CompoundFileOf(std::string_view name, std::string stream);

}  // namespace lorvane

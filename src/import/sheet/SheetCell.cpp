#include "import/sheet/SheetCell.h"

#include "basic/Number.h"

namespace lorvane {
namespace {

struct Text {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(double number) const { return ShortestText(number); }
  std::string operator()(bool flag) const { return flag ? "True" : "False"; }
  std::string operator()(const DateTime& date) const { return ShortDate(date); }
  std::string operator()(const SheetError& error) const { return error.code; }
};

}  // namespace

SheetCell CellOfSerial(double serial, bool countsFrom1904) {
  constexpr double kDaysTo1904 = 1462;
  const std::optional<DateTime> date = DateOfSerial(serial + (countsFrom1904 ? kDaysTo1904 : 0));
  return date ? SheetCell(*date) : SheetCell(serial);
}

bool IsBlank(const SheetCell& cell) {
  const std::string* text = std::get_if<std::string>(&cell);
  return std::holds_alternative<std::monostate>(cell) || (text != nullptr && text->empty());
}

std::string CellText(const SheetCell& cell) { return std::visit(Text(), cell); }

}  // namespace lorvane

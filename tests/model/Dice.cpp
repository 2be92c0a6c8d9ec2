#include "Dice.h"

#include "Script.h"

namespace lorvane::model {
namespace {

std::string WithDecimals(Dice& dice, int dollars) {
  std::string text = std::to_string(dollars) + ".";
  const int decimals = dice.Between(1, 7);
  for (int place = 0; place < decimals; ++place) {
    text += static_cast<char>('0' + dice.Between(0, 9));
  }
  return text;
}

// Half a cent, where roundings part.
std::string WithHalfACent(Dice& dice, int dollars) {
  std::string text = std::to_string(dollars) + "." + std::to_string(dice.Between(10, 99)) + "5";
  return dice.Chance(1, 4) ? text + "0001" : text;
}

std::string AboutTheCeiling(Dice& dice, const DeskRow& row) {
  static const std::vector<std::string> kTails{"", "", "4", "5", "5", "49999", "6"};
  const Cents left = row.maxContrib - row.accWages + dice.Between(-1, 1);
  return PlainText(left) + dice.OneOf(kTails);
}

}  // namespace

Dice::Dice(unsigned seed, unsigned step) {
  std::seed_seq sequence{seed, step};
  engine_.seed(sequence);
}

int Dice::Between(int least, int most) {
  return std::uniform_int_distribution<int>(least, most)(engine_);
}

bool Dice::Chance(int part, int whole) { return Between(1, whole) <= part; }

std::size_t Dice::Place(std::size_t count) {
  return std::uniform_int_distribution<std::size_t>(0, count - 1)(engine_);
}

std::string AnyAmount(Dice& dice, const DeskRow& row) {
  static const std::vector<std::string> kOdd{
      "",     "-",      ".",     "1.2.3",  "1-2",   "-.5",   ".5",    "5.",          "0007",
      "0.00", "-0.004", "0.005", "-0.005", "1.005", "2.675", "10.25", "123456789.12"};
  const int dollars = dice.Between(1, dice.Chance(1, 3) ? 3000 : 500);
  const std::string sign = dice.Chance(1, 6) ? "-" : "";
  switch (dice.Between(0, 9)) {
    case 0:
    case 1:
      return sign + std::to_string(dollars);
    case 2:
    case 3:
      return sign + std::to_string(dollars) + "." + std::to_string(dice.Between(10, 99));
    case 4:
    case 5:
      return sign + WithDecimals(dice, dollars);
    case 6:
      return sign + WithHalfACent(dice, dollars);
    case 7:
    case 8:
      return row.percent.empty() ? AboutTheCeiling(dice, row) : sign + std::to_string(dollars);
    default:
      return dice.OneOf(kOdd);
  }
}

std::string AnyMaximum(Dice& dice) {
  const int dollars = dice.Between(0, dice.Chance(1, 2) ? 9000 : 2500);
  return dice.Chance(1, 3) ? WithDecimals(dice, dollars) : std::to_string(dollars);
}

}  // namespace lorvane::model

#include "glance/YearAtAGlance.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "company/cIndustry.h"
#include "data/modDataAccess.h"
#include "people/NoDate.h"

namespace lorvane {
namespace {

constexpr int kLetterDays = 30;

struct PayeeTables {
  const char* payee;
  const char* people;
  const char* history;
  /// Who has left is in no payment list.
  const char* onlyThose;
};

constexpr std::array kPayees{
    PayeeTables{"employee", "tblEmployees", "tblEmpHistory", " AND Inactive = 0"},
    PayeeTables{"sub-contractor", "tblSubContract", "tblSubHistory", ""},
};

std::optional<DateTime> DateIn(const Value& value) {
  if (const DateTime* date = std::get_if<DateTime>(&value)) {
    return *date;
  }
  return ParseDate(NullToText(value));
}

int YearOf(const Session& session, const DateTime& today) {
  constexpr int kEarliest = 1900;
  try {
    const int year = ToInteger(session.Ini().KeyGet("Assessment", "CurrentYear", "0"));
    return year < kEarliest ? today.year : year;
  } catch (const RuntimeError&) {
    return today.year;
  }
}

class GlanceReader {
 public:
  GlanceReader(const Session& session, const DateTime& today)
      : connection_(session.gDataConn->MakeTwin()), today_(today.Day()) {
    connection_->OpenOrRaise();
    glance_.year = YearOf(session, today);
  }

  YearAtAGlance Read() {
    ReadIndustries();
    for (const PayeeTables& payees : kPayees) {
      ReadPosted(payees);
      for (const IndustrySlot slot : kAllSlots) {
        ReadWaiting(payees, slot);
      }
    }
    ReadCeilings();
    ReadClearances();
    return std::move(glance_);
  }

 private:
  using Row = std::vector<Value>;

  std::vector<Row> Query(const std::string& statement) {
    return connection_->Connection().Query(statement).rows;
  }

  void ReadIndustries() {
    cIndustry industries;
    industries.SetDataConnection(connection_.get());
    if (!industries.OpenRecordset()) {
      return;
    }
    glance_.used = industries.Ind;
    glance_.descriptions = industries.Desc;
  }

  // One pass over the history: a payday of an industry is one row, however many were paid.
  void ReadPosted(const PayeeTables& payees) {
    std::string keys;
    std::string sums;
    for (const IndustrySlot slot : kAllSlots) {
      keys += (keys.empty() ? "" : ", ") + SlotName("Ind", slot) + ", " + SlotName("PayDate", slot);
      sums += ", Sum(" + SlotName("AssessAmt", slot) + ") AS " + SlotName("Sum", slot);
    }
    for (const Row& row :
         Query(fmt::format("SELECT {0}{1}, Sum(Remittance) AS Assessment FROM {2} GROUP BY {0}",
                           keys, sums, payees.history))) {
      AddPosted(row);
    }
  }

  // The assessment of a row belongs to the one industry that it is marked with.
  void AddPosted(const Row& row) {
    constexpr std::size_t kKeys = 2;
    const std::size_t sums = kKeys * kAllSlots.size();
    for (const IndustrySlot slot : kAllSlots) {
      const std::size_t place = kKeys * IndexOf(slot);
      const std::optional<DateTime> day = DateIn(row[place + 1]);
      if (NullToBool(row[place]) && day && day->year == glance_.year) {
        glance_.months.at(static_cast<std::size_t>(day->month - 1))[slot] +=
            YearSums{NullToCurrency(row[sums + IndexOf(slot)]), NullToCurrency(row.back())};
        glance_.used[slot] = true;
        return;
      }
    }
  }

  void ReadWaiting(const PayeeTables& payees, IndustrySlot slot) {
    const std::vector<Row> rows = Query(fmt::format(
        "SELECT Count(*) AS Entries, Sum({0}) AS Total FROM {1} WHERE {2} = -1 AND {0} <> 0{3}",
        SlotName("Amount", slot), payees.people, SlotName("Ind", slot), payees.onlyThose));
    const std::int32_t count = rows.empty() ? 0 : NullToLong(rows.front()[0]);
    if (count > 0) {
      glance_.waiting.push_back(
          {payees.payee, slot, static_cast<std::size_t>(count), NullToCurrency(rows.front()[1])});
    }
  }

  void ReadCeilings() {
    constexpr std::int64_t kNear = 9;
    constexpr std::int64_t kOf = 10;
    for (const Row& row : Query("SELECT LastName, FirstName, AccWages, MaxContrib FROM "
                                "tblEmployees WHERE Inactive = 0 AND MaxContrib > 0 AND AccWages > "
                                "0")) {
      const Currency wages = NullToCurrency(row[2]);
      const Currency ceiling = NullToCurrency(row[3]);
      if (wages.TenThousandths() / kNear >= ceiling.TenThousandths() / kOf) {
        const std::string first = NullToText(row[1]);
        glance_.nearCeiling.push_back(
            {NullToText(row[0]) + (first.empty() ? "" : ", " + first), wages, ceiling});
      }
    }
    const auto share = [](const NearCeiling& one) {
      return one.wages.ToDouble() / one.ceiling.ToDouble();
    };
    std::stable_sort(glance_.nearCeiling.begin(), glance_.nearCeiling.end(),
                     [&](const NearCeiling& left, const NearCeiling& right) {
                       return share(left) > share(right);
                     });
  }

  void ReadClearances() {
    const DateTime none = ToDate(kNoDateStored);
    const double last = SerialOf(today_) + kLetterDays;
    for (const Row& row : Query("SELECT Name, Expiry FROM tblSubContract")) {
      const std::optional<DateTime> expiry = DateIn(row[1]);
      if (expiry && expiry->Day() != none && SerialOf(expiry->Day()) <= last) {
        glance_.clearances.push_back({NullToText(row[0]), expiry->Day(), expiry->Day() < today_});
      }
    }
    std::stable_sort(glance_.clearances.begin(), glance_.clearances.end(),
                     [](const ClearanceDue& left, const ClearanceDue& right) {
                       return left.expiry < right.expiry;
                     });
  }

  std::unique_ptr<DataConnection> connection_;
  DateTime today_;
  YearAtAGlance glance_;
};

}  // namespace

YearSums& YearSums::operator+=(const YearSums& other) {
  assessable += other.assessable;
  assessment += other.assessment;
  return *this;
}

YearSums YearAtAGlance::TotalOf(IndustrySlot slot) const {
  YearSums total;
  for (const Month& month : months) {
    total += month[slot];
  }
  return total;
}

YearSums YearAtAGlance::Total() const {
  YearSums total;
  for (const IndustrySlot slot : kAllSlots) {
    total += TotalOf(slot);
  }
  return total;
}

YearAtAGlance ReadYearAtAGlance(const Session& session, const DateTime& today) {
  return GlanceReader(session, today).Read();
}

}  // namespace lorvane

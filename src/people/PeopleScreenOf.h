#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "people/PeopleScreen.h"
#include "screen/Session.h"

namespace lorvane {

/// A window of people over the record of one kind. `Kind` names the record and its payment history,
/// their keys, the name by which people are sought, and how the list is ordered.
template <typename Kind>
class PeopleScreenOf : public PeopleScreen {
 protected:
  using Person = typename Kind::Person;

  PeopleScreenOf(ScreenContext context, const PeopleWords& words)
      : PeopleScreen(context, words), connection_(context.session.gDataConn.get()) {
    record_.SetDataConnection(connection_);
  }

  Person record_;

 private:
  [[nodiscard]] Record& TheRecord() final { return record_; }
  [[nodiscard]] std::int32_t& Key() final { return record_.*Kind::kKey; }
  [[nodiscard]] std::string& WantedName() final { return record_.*Kind::kName; }

  bool Open(Selection selection) final {
    switch (selection) {
      case Selection::kNames:
        return OpenOn(Person::kSelectNames, 0, Kind::kOrderByName);
      case Selection::kNamesDescending:
        return OpenOn(Person::kSelectNames, 0, Kind::kOrderByNameDescending);
      case Selection::kByKey:
        return OpenOn(Person::kSelectAll, Person::kWhereKey, 0);
      case Selection::kByName:
        return OpenOn(Person::kSelectAll, Kind::kWhereNameBegins, 0);
    }
    return false;
  }

  bool OpenOn(std::int32_t select, std::int32_t where, std::int32_t orderBy) {
    record_.SelectFilter = select;
    record_.WhereFilter = where;
    record_.OrderByFilter = orderBy;
    return record_.OpenRecordset();
  }

  bool AddRecord() final { return record_.AddNew(); }
  bool UpdateRecord() final { return record_.Update(); }

  bool DeleteRecord() final {
    record_.WhereFilter = Person::kWhereKey;
    return record_.Delete();
  }

  [[nodiscard]] std::unique_ptr<Record> PaymentsOf(std::int32_t key) const final {
    auto history = std::make_unique<typename Kind::History>();
    history->SetDataConnection(connection_);
    history->SelectFilter = Kind::History::kSelectKeys;
    history->WhereFilter = Kind::History::kWherePerson;
    (*history).*Kind::kHistoryKey = key;
    return history;
  }

  DataConnection* connection_;
};

}  // namespace lorvane

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/engine/Engine.h"

namespace lorvane {

/// A table of a company's data file, or of the rate database.
struct TableDefinition {
  std::string name;
  std::vector<Column> columns;
};

/// Every table of a company's data file, as it is made today.
[[nodiscard]] const std::vector<TableDefinition>& CompanyTables();

/// The company's table of that name, and a table's column, both without regard to case. Raise 3265
/// when there is none.
[[nodiscard]] const TableDefinition& CompanyTable(std::string_view name);
[[nodiscard]] const Column& ColumnNamed(const TableDefinition& table, std::string_view name);

/// The rate table of a year in the rate database: code, description and rate in per cent.
[[nodiscard]] TableDefinition RateTable(int year);

/// Makes the tables of a company's data file, empty.
void CreateCompanySchema(EngineConnection& connection);

}  // namespace lorvane

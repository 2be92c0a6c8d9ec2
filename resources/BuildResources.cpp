// Makes the program's resources from their readable sources: the empty company that a new one
// starts from, the sample company, and the database of published rates.
//
//   build-resources SOURCES RESOURCE     both folders; RESOURCE is made when missing
//
// Each table comes from a CSV file of its name, whose heading row names the columns; a cell left
// empty is null, and a column left out keeps its default.

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "basic/Number.h"
#include "basic/RuntimeError.h"
#include "data/ContractTypes.h"
#include "data/DataConnection.h"
#include "data/Schema.h"
#include "data/engine/Engine.h"
#include "data/engine/WriteBatch.h"
#include "import/sheet/CsvFile.h"

namespace fs = std::filesystem;

namespace lorvane {
namespace {

void FillTable(EngineConnection& connection, const std::string& table, const fs::path& source) {
  const CsvFile file = CsvFile::Read(source.string());
  if (file.Rows().empty()) {
    throw RuntimeError(error_number::kPathFileAccess, source.string() + " has no heading row.");
  }
  const std::vector<std::string>& heading = file.Rows().front().cells;
  for (std::size_t place = 1; place < file.Rows().size(); ++place) {
    const CsvRow& row = file.Rows()[place];
    try {
      if (row.cells.size() > heading.size()) {
        throw RuntimeError(error_number::kPathFileAccess, "more cells than the heading row.");
      }
      ColumnValues values;
      for (std::size_t cell = 0; cell < heading.size(); ++cell) {
        const std::string text(row.Cell(cell));
        values.emplace_back(heading[cell], text.empty() ? Value() : Value(text));
      }
      connection.InsertRow(table, values);
    } catch (const RuntimeError& error) {
      throw RuntimeError(error.Number(), file.PlaceOf(row) + ": " + error.Description());
    }
  }
}

// Writes a database beside its place and moves it there when it is whole.
template <typename Fill>
void MakeDatabase(const fs::path& target, const std::string& password, Fill fill) {
  fs::create_directories(target.parent_path());
  fs::path unfinished = target;
  unfinished += ".new";
  fs::remove(unfinished);
  const std::unique_ptr<Engine> engine = MakeFileEngine();
  {
    const std::unique_ptr<EngineConnection> connection =
        engine->Create(unfinished.string(), password);
    WriteBatch batch(*connection);
    fill(*connection);
    batch.Commit();
  }
  fs::rename(unfinished, target);
}

// A table's rows come from the first folder that has a file for it; a table without one stays
// empty.
void MakeCompany(const fs::path& target, const std::vector<fs::path>& folders) {
  MakeDatabase(target, kDataFilePassword, [&](EngineConnection& connection) {
    CreateCompanySchema(connection);
    for (const TableDefinition& table : CompanyTables()) {
      for (const fs::path& folder : folders) {
        const fs::path source = folder / (table.name + ".csv");
        if (fs::exists(source)) {
          FillTable(connection, table.name, source);
          break;
        }
      }
    }
    AddStandardContractTypes(connection);
  });
}

// One table for each file named by a year.
void MakeRates(const fs::path& target, const fs::path& folder) {
  std::vector<fs::path> sources;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".csv") {
      sources.push_back(entry.path());
    }
  }
  std::sort(sources.begin(), sources.end());
  MakeDatabase(target, "", [&](EngineConnection& connection) {
    for (const fs::path& source : sources) {
      const TableDefinition table = RateTable(ToLong(source.stem().string()));
      connection.CreateTable(table.name, table.columns);
      FillTable(connection, table.name, source);
    }
  });
}

void MakeResources(const fs::path& sources, const fs::path& target) {
  const fs::path sampleFolder = target / "Sample Data";
  MakeCompany(target / "Template" / "Data.mdb", {sources / "template"});
  MakeCompany(sampleFolder / "Data.mdb", {sources / "sample", sources / "template"});
  fs::copy_file(sources / "sample" / "LorvaneConfig.ini", sampleFolder / "LorvaneConfig.ini",
                fs::copy_options::overwrite_existing);
  MakeRates(target / "Sic.mdb", sources / "rates");
}

}  // namespace
}  // namespace lorvane

int main(int count, char* arguments[]) {
  if (count != 3) {
    std::cerr << "usage: build-resources SOURCES RESOURCE\n";
    return 2;
  }
  try {
    lorvane::MakeResources(arguments[1], arguments[2]);
  } catch (const std::exception& error) {
    std::cerr << "build-resources: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}

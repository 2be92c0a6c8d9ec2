#include "data/CheckedCopy.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

[[noreturn]] void Fail(const std::string& reason) {
  throw RuntimeError(error_number::kEngineFailure, reason);
}

std::vector<std::string> TablesOf(EngineConnection& connection) {
  std::vector<std::string> names = connection.TableNames();
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::unique_ptr<DataConnection> OpenCopy(const DataConnection& connection,
                                         const std::string& file) {
  std::unique_ptr<DataConnection> other = connection.MakeTwin();
  other->DataSource = file;
  other->OpenOrRaise();
  return other;
}

void RequireSameContent(const std::string& name, EngineConnection& copy,
                        EngineConnection& original) {
  if (!copy.CheckIntegrity().empty()) {
    Fail(name + " is damaged.");
  }
  const std::vector<std::string> tables = TablesOf(original);
  if (TablesOf(copy) != tables) {
    Fail(name + " lacks a table.");
  }
  for (const std::string& table : tables) {
    const std::string count = fmt::format("SELECT Count(*) AS Rows FROM [{}]", table);
    if (copy.Query(count).rows != original.Query(count).rows) {
      Fail(fmt::format("{} lacks rows of {}.", name, table));
    }
  }
}

void RequireClosed(Files& files, const std::string& file) {
  // The log goes when the last one who has the file open closes it.
  if (files.Exists(file + "-wal")) {
    Fail("The file " + file + " is in use by another program.");
  }
}

}  // namespace lorvane

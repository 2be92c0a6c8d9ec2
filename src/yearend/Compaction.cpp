#include "yearend/Compaction.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {
namespace {

[[noreturn]] void Fail(const std::string& reason) {
  throw RuntimeError(error_number::kEngineFailure, reason);
}

std::unique_ptr<DataConnection> OpenAs(const DataConnection& connection, const std::string& file) {
  std::unique_ptr<DataConnection> other = connection.MakeAnother();
  other->SetProviderConst(connection.ProviderConst());
  other->Password = connection.Password;
  other->DataSource = file;
  if (!other->DataOpen()) {
    Fail(other->Errors().front().description);
  }
  return other;
}

std::vector<std::string> TablesOf(EngineConnection& connection) {
  std::vector<std::string> names = connection.TableNames();
  std::sort(names.begin(), names.end());
  return names;
}

void CompareWithFile(EngineConnection& file, EngineConnection& copy) {
  if (!copy.CheckIntegrity().empty()) {
    Fail("The compacted copy is damaged.");
  }
  const std::vector<std::string> tables = TablesOf(file);
  if (TablesOf(copy) != tables) {
    Fail("The compacted copy lacks a table.");
  }
  for (const std::string& table : tables) {
    const std::string count = "SELECT Count(*) AS Rows FROM [" + table + "]";
    if (copy.Query(count).rows != file.Query(count).rows) {
      Fail("The compacted copy lacks rows of " + table + ".");
    }
  }
}

// The log goes when the last one who has the file open closes it.
void RequireClosed(Files& files, const std::string& file) {
  if (files.Exists(file + "-wal")) {
    Fail("The file " + file + " is in use by another program.");
  }
}

void RemoveCopy(Files& files, const std::string& copy) {
  for (const char* companion : {"-journal", "-wal", "-shm", ""}) {
    files.Remove(copy + companion);
  }
}

std::string WithThousands(std::uintmax_t number) {
  constexpr std::size_t kGroup = 3;
  std::string text = std::to_string(number);
  for (std::size_t place = text.size(); place > kGroup;) {
    place -= kGroup;
    text.insert(place, 1, ',');
  }
  return text;
}

}  // namespace

std::string DescribeCompaction(const Compaction& compaction) {
  if (!compaction.done) {
    return compaction.file + " was not compacted. " + compaction.reason;
  }
  return "Compacted " + compaction.file + ": " + WithThousands(compaction.bytesBefore) +
         " bytes before, " + WithThousands(compaction.bytesAfter) + " bytes after";
}

Compaction CompactDataFile(const DataConnection& connection, Files& files) {
  const std::string& file = connection.DataSource;
  const std::string copy = file + "2";
  Compaction compaction;
  compaction.file = GetNamePart(file);
  bool begun = false;
  try {
    compaction.bytesBefore = files.Size(file);
    std::unique_ptr<DataConnection> opened = OpenAs(connection, file);
    begun = true;
    // What a compaction that was killed may have left.
    RemoveCopy(files, copy);
    opened->Connection().WriteCompactCopy(copy);
    CompareWithFile(opened->Connection(), OpenAs(connection, copy)->Connection());
    opened.reset();
    RequireClosed(files, file);
    RequireClosed(files, copy);
    compaction.bytesAfter = files.Size(copy);
    files.Replace(copy, file);
    compaction.done = true;
  } catch (const RuntimeError& error) {
    compaction.reason = error.Description();
  }
  if (begun && !compaction.done) {
    try {
      RemoveCopy(files, copy);
    } catch (const RuntimeError&) {
      // The next compaction tries again.
      return compaction;
    }
  }
  return compaction;
}

}  // namespace lorvane

#pragma once

#include <cstdint>
#include <string>

#include "data/DataConnection.h"
#include "data/Files.h"

namespace lorvane {

/// What came of compacting a data file.
struct Compaction {
  bool done = false;
  std::string file;
  std::uintmax_t bytesBefore = 0;
  std::uintmax_t bytesAfter = 0;
  /// Why it wasn't done: the file is as it was then.
  std::string reason;
};

/// "Compacted Data.mdb: 1,234,567 bytes before, 987,654 bytes after", or why not.
[[nodiscard]] std::string DescribeCompaction(const Compaction& compaction);

/// Compacts the data file of a connection, which is closed here and in every other program. The
/// compacted copy is written beside the file, under its name with a "2" behind it, compared with
/// the file, and only then put into its place. Raises nothing.
[[nodiscard]] Compaction CompactDataFile(const DataConnection& connection, Files& files);

}  // namespace lorvane

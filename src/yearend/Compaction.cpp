#include "yearend/Compaction.h"

#include <memory>

#include "basic/RuntimeError.h"
#include "basic/Text.h"
#include "data/CheckedCopy.h"
#include "data/DataFileParts.h"

namespace lorvane {
namespace {

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
    std::unique_ptr<DataConnection> opened = OpenCopy(connection, file);
    begun = true;
    // What a compaction that was killed may have left.
    RemoveDataFile(files, copy);
    opened->Connection().WriteCompactCopy(copy);
    RequireSameContent("The compacted copy", OpenCopy(connection, copy)->Connection(),
                       opened->Connection());
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
      RemoveDataFile(files, copy);
    } catch (const RuntimeError&) {
      // The next compaction tries again.
      return compaction;
    }
  }
  return compaction;
}

}  // namespace lorvane

#include "yearend/BackUpFirst.h"

#include <cstdint>

#include "basic/RuntimeError.h"
#include "data/Backups.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"

namespace lorvane {
namespace {

// What a command may write besides, in sizes of the data file: an archive, the log of what is
// deleted, and a compacted copy. A backup must never be what the disk has no room for that.
constexpr std::uintmax_t kSizesToLeave = 3;

}  // namespace

std::string BackUpFirst(ScreenContext context) {
  Session& session = context.session;
  if (!session.Ini().KeyGet("DataBase", "YE", "").empty()) {
    return {};
  }
  const DataConnection& connection = *session.gDataConn;
  try {
    Backups(session.files, connection.DataSource)
        .Make(connection, context.services.Now(),
              kSizesToLeave * session.files.Size(connection.DataSource));
    return {};
  } catch (const RuntimeError& error) {
    return "No backup was made. " + error.Description();
  }
}

}  // namespace lorvane

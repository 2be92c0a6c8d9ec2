#include "import/sheet/SheetFailure.h"

#include "basic/RuntimeError.h"
#include "basic/Text.h"

namespace lorvane {

void RefuseSheet(const std::string& path, const std::string& reason) {
  throw RuntimeError(error_number::kPathFileAccess, "'" + GetNamePart(path) + "' " + reason);
}

}  // namespace lorvane

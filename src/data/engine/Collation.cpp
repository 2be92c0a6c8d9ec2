#include "data/engine/Collation.h"

#include <unicode/ucol.h>

#include <memory>

#include "basic/RuntimeError.h"

namespace lorvane {
namespace {

struct CloseCollator {
  void operator()(UCollator* collator) const { ucol_close(collator); }
};

using CollatorPointer = std::unique_ptr<UCollator, CloseCollator>;

CollatorPointer OpenCollator() {
  UErrorCode status = U_ZERO_ERROR;
  CollatorPointer collator(ucol_open("en_CA", &status));
  if (U_FAILURE(status) != 0) {
    throw RuntimeError(error_number::kEngineFailure,
                       "The rules by which texts are ordered could not be loaded.");
  }
  ucol_setStrength(collator.get(), UCOL_SECONDARY);
  return collator;
}

}  // namespace

int CompareTexts(std::string_view left, std::string_view right) {
  if (left == right) {
    return 0;
  }
  static const CollatorPointer collator = OpenCollator();
  UErrorCode status = U_ZERO_ERROR;
  return ucol_strcollUTF8(collator.get(), left.data(), static_cast<std::int32_t>(left.size()),
                          right.data(), static_cast<std::int32_t>(right.size()), &status);
}

}  // namespace lorvane

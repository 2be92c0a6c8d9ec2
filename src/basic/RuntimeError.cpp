#include "basic/RuntimeError.h"

#include <fmt/format.h>

#include <array>
#include <utility>

#include "basic/Text.h"

namespace lorvane {
namespace {

struct UsualSentence {
  std::int32_t number;
  const char* text;
};

constexpr std::array kUsualSentences{
    UsualSentence{error_number::kOverflow, "Overflow"},
    UsualSentence{error_number::kSubscriptOutOfRange, "Subscript out of range"},
    UsualSentence{error_number::kTypeMismatch, "Type mismatch"},
    UsualSentence{error_number::kHelpNotAvailable, "Error in loading the help service"},
    UsualSentence{error_number::kFileNotFound, "File not found"},
    UsualSentence{error_number::kFileAlreadyExists, "File already exists"},
    UsualSentence{error_number::kDiskFull, "Disk full"},
    UsualSentence{error_number::kPermissionDenied, "Permission denied"},
    UsualSentence{error_number::kPathFileAccess, "Path/File access error"},
    UsualSentence{error_number::kObjectNotSet, "Object variable not set"},
    UsualSentence{error_number::kInvalidPropertyValue, "Invalid property value"},
    UsualSentence{error_number::kInvalidArrayIndex, "Invalid property array index"},
    UsualSentence{error_number::kTextNotInList, "'Text' property is read-only"},
    UsualSentence{error_number::kNoCurrentRow,
                  "Either BOF or EOF is True, or the current record has been deleted. Requested "
                  "operation requires a current record."},
    UsualSentence{error_number::kItemNotFound,
                  "Item cannot be found in the collection corresponding to the requested name or "
                  "ordinal."},
    UsualSentence{error_number::kObjectClosed,
                  "Operation is not allowed when the object is closed."},
    UsualSentence{error_number::kCancelSelected, "Cancel was selected."},
    UsualSentence{error_number::kIndexOutOfBounds, "Index out of bounds"},
    UsualSentence{error_number::kDateOutOfRange, "The date is outside the limits of the picker."},
};

std::string UsualSentenceOf(std::int32_t number) {
  for (const UsualSentence& sentence : kUsualSentences) {
    if (sentence.number == number) {
      return sentence.text;
    }
  }
  return "Application-defined or object-defined error";
}

}  // namespace

RuntimeError::RuntimeError(std::int32_t number, std::string description)
    : number_(number), description_(std::move(description)) {}

RuntimeError::RuntimeError(std::int32_t number) : RuntimeError(number, UsualSentenceOf(number)) {}

std::string ErrorNumberText(std::int32_t number) {
  return number >= 0 ? std::to_string(number)
                     : fmt::format("0x{:08X}", static_cast<std::uint32_t>(number));
}

std::string NumberAndDescription(const RuntimeError& error) {
  return std::to_string(error.Number()) + kCrLf + error.Description();
}

}  // namespace lorvane

#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace lorvane {

/// Numbers of the run-time errors that the system tells apart.
namespace error_number {

inline constexpr std::int32_t kOverflow = 6;
inline constexpr std::int32_t kSubscriptOutOfRange = 9;
inline constexpr std::int32_t kTypeMismatch = 13;
inline constexpr std::int32_t kHelpNotAvailable = 48;
inline constexpr std::int32_t kInternalError = 51;
inline constexpr std::int32_t kFileNotFound = 53;
inline constexpr std::int32_t kDeviceError = 57;
inline constexpr std::int32_t kFileAlreadyExists = 58;
inline constexpr std::int32_t kDiskFull = 61;
inline constexpr std::int32_t kPermissionDenied = 70;
inline constexpr std::int32_t kPathFileAccess = 75;
inline constexpr std::int32_t kObjectNotSet = 91;
inline constexpr std::int32_t kInvalidPropertyValue = 380;
inline constexpr std::int32_t kInvalidArrayIndex = 381;
inline constexpr std::int32_t kTextNotInList = 383;
inline constexpr std::int32_t kNoCurrentRow = 3021;
inline constexpr std::int32_t kItemNotFound = 3265;
inline constexpr std::int32_t kObjectClosed = 3704;
inline constexpr std::int32_t kCancelSelected = 32755;
inline constexpr std::int32_t kIndexOutOfBounds = 35600;
inline constexpr std::int32_t kDateOutOfRange = 35773;

// What the data engine reports.
inline constexpr std::int32_t kEngineFailure = static_cast<std::int32_t>(0x80004005);
inline constexpr std::int32_t kEngineTypeMismatch = static_cast<std::int32_t>(0x80040E07);
inline constexpr std::int32_t kEngineUnknownColumn = static_cast<std::int32_t>(0x80040E10);
inline constexpr std::int32_t kEngineCommand = static_cast<std::int32_t>(0x80040E14);
inline constexpr std::int32_t kEngineIntegrity = static_cast<std::int32_t>(0x80040E2F);
inline constexpr std::int32_t kEngineUnknownTable = static_cast<std::int32_t>(0x80040E37);
inline constexpr std::int32_t kEngineTextTooLong = static_cast<std::int32_t>(0x80040E57);
inline constexpr std::int32_t kEngineDiskFull = static_cast<std::int32_t>(0x80070070);

}  // namespace error_number

/// An error of a running operation: a number that handlers compare, and a sentence for the user.
///
/// It travels as an exception inside a subsystem. Record classes and other classes with boolean
/// results catch it; one that nobody catches ends the program.
class RuntimeError : public std::exception {
 public:
  RuntimeError(std::int32_t number, std::string description);
  /// An error with the usual sentence of its number.
  explicit RuntimeError(std::int32_t number);

  [[nodiscard]] std::int32_t Number() const noexcept { return number_; }
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string description_;
};

/// The number as people know it: 13, or 0x80040E37 for those of the data engine.
[[nodiscard]] std::string ErrorNumberText(std::int32_t number);

/// Number, line break, description: how a box shows an error.
[[nodiscard]] std::string NumberAndDescription(const RuntimeError& error);

}  // namespace lorvane

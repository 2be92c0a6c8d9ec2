#pragma once

#include <memory>
#include <string>

#include "data/DataConnection.h"
#include "data/Files.h"

namespace lorvane {

// What a copy of a data file has to stand before anybody relies on it. Each raises a RuntimeError
// with a sentence for the user.

/// Opens another data file as the connection opens its own.
[[nodiscard]] std::unique_ptr<DataConnection> OpenCopy(const DataConnection& connection,
                                                       const std::string& file);

/// Raises when the copy is damaged, or lacks a table or rows of the original. `name` begins the
/// sentence: "The compacted copy".
void RequireSameContent(const std::string& name, EngineConnection& copy,
                        EngineConnection& original);

/// Raises when somebody has the data file open: what stands in its log would be missed.
void RequireClosed(Files& files, const std::string& file);

}  // namespace lorvane

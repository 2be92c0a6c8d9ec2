#pragma once

#include <cstdint>

#include "data/engine/Engine.h"

namespace lorvane {

/// Adds the contract types that every company begins with to tblAssessable: those valid everywhere
/// and those of the boards of Nova Scotia and New Brunswick. Gives their number, which is the last
/// key of an empty table.
std::int32_t AddStandardContractTypes(EngineConnection& connection);

}  // namespace lorvane

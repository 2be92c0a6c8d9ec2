#pragma once

#include "data/DataConnection.h"

namespace lorvane {

/// Sets the yearly maximum of every employee, inactive ones too, to an amount of dollars. A row
/// that can't be written is passed over; true all the same. Raises 3704 while the connection is
/// closed, and what the engine raises when the rows can't be read or none could be kept.
[[nodiscard]] bool ResetAllMaxContrib(DataConnection& connection, double amount);

/// Sets one column of every employee to an amount, as above.
void SetForAllEmployees(DataConnection& connection, const char* column, double amount);

}  // namespace lorvane

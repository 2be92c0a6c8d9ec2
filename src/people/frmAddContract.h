#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "people/cAssessable.h"
#include "screen/Labelled.h"
#include "screen/Screen.h"
#include "screen/TextBox.h"

namespace lorvane {

/// The dialog for one contract type. Enter in the percentage saves it; closed in any other way it
/// saves nothing.
class frmAddContract : public Screen {
 public:
  explicit frmAddContract(ScreenContext context);

  /// A new type of the province ProvId, or else the one of the key AssessId.
  bool Adding = false;
  std::string ProvId;
  std::int32_t AssessId = 0;

  Labelled<TextBox> txtDescription{*this, "txtDescription", "Description"};
  Labelled<TextBox> txtAssessable{*this, "txtAssessable", "Assessable"};
  Label lblPercent{*this, "lblPercent", "%"};

  void Load() override;
  void Unload() override;
  /// "Adding", "Description", "Assessable", "ProvId", "AssessId".
  [[nodiscard]] std::optional<std::string> Property(std::string_view name) const override;

 private:
  void LoadAssessable();
  void PercentageKeyPress(int& key);
  /// Raises 13 for a percentage that is no number.
  void AddContract();
  void UpdateContract();

  cAssessable contract_;
};

}  // namespace lorvane

#include "people/frmContracts.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "basic/Number.h"
#include "company/cCompany.h"
#include "people/ContractProvinces.h"
#include "people/frmAddContract.h"
#include "screen/ScreenServices.h"
#include "screen/Session.h"
#include "screen/modForm.h"
#include "screen/modListBox.h"

namespace lorvane {
namespace {

// The types that are valid everywhere. They can't be edited.
constexpr double kLastFixedId = 3;

}  // namespace

frmContracts::frmContracts(ScreenContext context)
    : Screen(context, "frmContracts", "Contract Types") {
  contracts_.SetDataConnection(context.session.gDataConn.get());
  lvwContracts.SetColumns({{"ID", 0, ListView::Alignment::kLeft},
                           {"Description", 3600, ListView::Alignment::kLeft},
                           {"Assessable Labour", 1800, ListView::Alignment::kRight}});
  // A contract type is added to a province, so there must be one.
  cmdAdd.SetEnabled(false);
  cmdEdit.SetEnabled(false);
  lstProvinces.OnClick = [this] {
    cmdAdd.SetEnabled(true);
    LoadContracts();
  };
  lvwContracts.OnClick = [this] { ChooseContract(); };
  cmdAdd.OnClick = [this] { Add(); };
  cmdEdit.OnClick = [this] { Edit(); };
  cmdOK.OnClick = cmdClose.OnClick = [this] { Close(); };
}

void frmContracts::Load() {
  CentreForm(*this);
  std::int32_t number = 0;
  for (const char* place : ContractPlaces()) {
    ListAddItem(lstProvinces, ++number, place);
  }
  SelectCompanyProvince();
}

void frmContracts::SelectCompanyProvince() {
  cCompany company;
  company.SetDataConnection(context_.session.gDataConn.get());
  if (company.OpenRecordset()) {
    lstProvinces.SelectText(PlaceOfProvince(company.Province));
  }
}

void frmContracts::Unload() { contracts_.CloseRecordset(); }

bool frmContracts::Call(std::string_view operation) {
  if (operation != "LoadContracts") {
    return false;
  }
  LoadContracts();
  return true;
}

std::string frmContracts::SelectedCode() const {
  return ContractProvinceCode(lstProvinces.ItemData(lstProvinces.ListIndex()));
}

void frmContracts::LoadContracts() {
  contracts_.SelectFilter = 0;
  contracts_.WhereFilter = cAssessable::kWhereOffered;
  contracts_.OrderByFilter = 0;
  contracts_.ProvId = SelectedCode();
  const auto tell = [this] {
    context_.services.MsgBox(contracts_.InfoMsg(), box::kExclamation, "LoadContracts");
  };
  if (!contracts_.OpenRecordset()) {
    tell();
    return;
  }
  std::vector<ListView::Row> rows;
  do {
    // A percentage too large to be read leaves its row without one.
    const bool readable = contracts_.InfoMsg().empty();
    if (!readable) {
      tell();
    }
    rows.push_back({{std::to_string(contracts_.AssessId), contracts_.Description,
                     readable ? ShortestText(contracts_.AssessableLabour) + "%" : std::string()},
                    false});
  } while (contracts_.MoveNext());
  lvwContracts.Clear();
  lvwContracts.AddRows(std::move(rows));
}

void frmContracts::ChooseContract() {
  const std::string& id = lvwContracts.Cell(lvwContracts.SelectedIndex(), 0);
  cmdEdit.SetEnabled(ToDouble(id) > kLastFixedId);
}

void frmContracts::Add() {
  frmAddContract add(context_);
  add.Adding = true;
  add.ProvId = SelectedCode();
  add.SetCaption("Add New Contract Type");
  context_.services.ShowModal(add);
}

void frmContracts::Edit() {
  if (lvwContracts.SelectedIndex() >= 0) {
    frmAddContract edit(context_);
    edit.Adding = false;
    edit.AssessId = ToLong(lvwContracts.Cell(lvwContracts.SelectedIndex(), 0));
    context_.services.ShowModal(edit);
  }
  cmdEdit.SetEnabled(false);
}

}  // namespace lorvane

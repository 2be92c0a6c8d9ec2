#include "people/ContractProvinces.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lorvane {
namespace {

struct ContractPlace {
  const char* name;
  const char* code;
};

// The places in the order of the list, each with the code that its contract types carry. From
// Manitoba to the District of Columbia the code is that of another place: the list lacks Ontario,
// the codes lack Virginia and have the District of Columbia two places earlier. Contract types on
// file stand under these codes, so neither the codes nor the spellings change.
constexpr std::array kPlaces{
    ContractPlace{"Newfoundland and Labrador", "NF"},
    ContractPlace{"Nova Scotia", "NS"},
    ContractPlace{"New Brunswick", "NB"},
    ContractPlace{"Prince Edward Island", "PE"},
    ContractPlace{"Quebec", "PQ"},
    ContractPlace{"Manitoba", "ON"},
    ContractPlace{"Saskatchewan", "MB"},
    ContractPlace{"Alberta", "SK"},
    ContractPlace{"British Columbia", "AB"},
    ContractPlace{"Northwest Territories", "BC"},
    ContractPlace{"Yukon Territory", "NWT"},
    ContractPlace{"Nunuvut", "YK"},
    ContractPlace{"Alabama", "NUN"},
    ContractPlace{"Alaska", "AL"},
    ContractPlace{"American Samoa", "AK"},
    ContractPlace{"Arizona", "AS"},
    ContractPlace{"Arkansas", "AZ"},
    ContractPlace{"California", "AR"},
    ContractPlace{"Colorado", "CA"},
    ContractPlace{"Connecticut", "CO"},
    ContractPlace{"Delaware", "CT"},
    ContractPlace{"Florida", "DE"},
    ContractPlace{"Georgia", "FL"},
    ContractPlace{"Guam", "GA"},
    ContractPlace{"Hawaii", "GU"},
    ContractPlace{"Idaho", "HI"},
    ContractPlace{"Illinois", "ID"},
    ContractPlace{"Indiana", "IL"},
    ContractPlace{"Iowa", "IN"},
    ContractPlace{"Kansas", "IA"},
    ContractPlace{"Kentucky", "KS"},
    ContractPlace{"Lousiana", "KY"},
    ContractPlace{"Maine", "LA"},
    ContractPlace{"Marshall Islands", "ME"},
    ContractPlace{"Maryland", "MH"},
    ContractPlace{"Massachusetts", "MD"},
    ContractPlace{"Michigan", "MA"},
    ContractPlace{"Minnesota", "MI"},
    ContractPlace{"Mississippi", "MN"},
    ContractPlace{"Missouri", "MS"},
    ContractPlace{"Montana", "MO"},
    ContractPlace{"Nebraska", "MT"},
    ContractPlace{"Nevada", "NE"},
    ContractPlace{"New Hampshire", "NV"},
    ContractPlace{"New Jersey", "NH"},
    ContractPlace{"New Mexico", "NJ"},
    ContractPlace{"New York", "NM"},
    ContractPlace{"North Carolina", "NY"},
    ContractPlace{"North Dakota", "NC"},
    ContractPlace{"Northern Mariana Islands", "ND"},
    ContractPlace{"Ohio", "MP"},
    ContractPlace{"Oaklahoma", "OH"},
    ContractPlace{"Oregon", "OK"},
    ContractPlace{"Paulau", "OR"},
    ContractPlace{"Pennsylvania", "PW"},
    ContractPlace{"Puerto Rico", "PA"},
    ContractPlace{"Rhode Island", "PR"},
    ContractPlace{"South Carolina", "RI"},
    ContractPlace{"South Dakota", "SC"},
    ContractPlace{"Tennessee", "SD"},
    ContractPlace{"Texas", "TN"},
    ContractPlace{"Utah", "TX"},
    ContractPlace{"Vermont", "UT"},
    ContractPlace{"Virgin Islands", "VT"},
    ContractPlace{"Virginia", "VI"},
    ContractPlace{"Washington", "DC"},
    ContractPlace{"District of Columbia", "WA"},
    ContractPlace{"West Virginia", "WV"},
    ContractPlace{"Wisconsin", "WI"},
    ContractPlace{"Wyoming", "WY"},
};

struct CompanyProvince {
  const char* code;
  const char* place;
};

// Where the list stands when it opens, by the company's province. "Ontario", "Minnisota" and
// "Palau" aren't in the list, so that companies there begin with no place selected, and nothing is
// known of FM. The misfits stay: they decide which contract types such a company sees.
constexpr std::array kCompanyProvinces{
    CompanyProvince{"NF", "Newfoundland and Labrador"},
    CompanyProvince{"NS", "Nova Scotia"},
    CompanyProvince{"PE", "Prince Edward Island"},
    CompanyProvince{"NB", "New Brunswick"},
    CompanyProvince{"PQ", "Quebec"},
    CompanyProvince{"ON", "Ontario"},
    CompanyProvince{"MB", "Manitoba"},
    CompanyProvince{"SK", "Saskatchewan"},
    CompanyProvince{"AB", "Alberta"},
    CompanyProvince{"BC", "British Columbia"},
    CompanyProvince{"YK", "Yukon Territory"},
    CompanyProvince{"NWT", "Northwest Territories"},
    CompanyProvince{"NUN", "Nunuvut"},
    CompanyProvince{"AL", "Alabama"},
    CompanyProvince{"AK", "Alaska"},
    CompanyProvince{"AS", "American Samoa"},
    CompanyProvince{"AZ", "Arizona"},
    CompanyProvince{"AR", "Arkansas"},
    CompanyProvince{"CA", "California"},
    CompanyProvince{"CO", "Colorado"},
    CompanyProvince{"CT", "Connecticut"},
    CompanyProvince{"DE", "Delaware"},
    CompanyProvince{"DC", "District of Columbia"},
    CompanyProvince{"FL", "Florida"},
    CompanyProvince{"GA", "Georgia"},
    CompanyProvince{"GU", "Guam"},
    CompanyProvince{"HI", "Hawaii"},
    CompanyProvince{"ID", "Idaho"},
    CompanyProvince{"IL", "Illinois"},
    CompanyProvince{"IN", "Indiana"},
    CompanyProvince{"IA", "Iowa"},
    CompanyProvince{"KS", "Kansas"},
    CompanyProvince{"KY", "Kentucky"},
    CompanyProvince{"LA", "Lousiana"},
    CompanyProvince{"ME", "Maine"},
    CompanyProvince{"MH", "Marshall Islands"},
    CompanyProvince{"MD", "Maryland"},
    CompanyProvince{"MA", "Massachusetts"},
    CompanyProvince{"MI", "Michigan"},
    CompanyProvince{"MN", "Minnisota"},
    CompanyProvince{"MS", "Mississippi"},
    CompanyProvince{"MO", "Missouri"},
    CompanyProvince{"MT", "Montana"},
    CompanyProvince{"NE", "Nebraska"},
    CompanyProvince{"NV", "Nevada"},
    CompanyProvince{"NH", "New Hampshire"},
    CompanyProvince{"NJ", "New Jersey"},
    CompanyProvince{"NM", "New Mexico"},
    CompanyProvince{"NY", "New York"},
    CompanyProvince{"NC", "North Carolina"},
    CompanyProvince{"ND", "North Dakota"},
    CompanyProvince{"MP", "Northern Mariana Islands"},
    CompanyProvince{"OH", "Ohio"},
    CompanyProvince{"OK", "Oaklahoma"},
    CompanyProvince{"OR", "Oregon"},
    CompanyProvince{"PW", "Palau"},
    CompanyProvince{"PA", "Pennsylvania"},
    CompanyProvince{"PR", "Puerto Rico"},
    CompanyProvince{"RI", "Rhode Island"},
    CompanyProvince{"SC", "South Carolina"},
    CompanyProvince{"SD", "South Dakota"},
    CompanyProvince{"TN", "Tennessee"},
    CompanyProvince{"TX", "Texas"},
    CompanyProvince{"UT", "Utah"},
    CompanyProvince{"VT", "Vermont"},
    CompanyProvince{"VI", "Virgin Islands"},
    CompanyProvince{"VA", "Virginia"},
    CompanyProvince{"WA", "Washington"},
    CompanyProvince{"WV", "West Virginia"},
    CompanyProvince{"WI", "Wisconsin"},
    CompanyProvince{"WY", "Wyoming"},
};

}  // namespace

const std::vector<const char*>& ContractPlaces() {
  static const std::vector<const char*> kNames = [] {
    std::vector<const char*> names;
    names.reserve(kPlaces.size());
    for (const ContractPlace& place : kPlaces) {
      names.push_back(place.name);
    }
    return names;
  }();
  return kNames;
}

std::string ContractProvinceCode(std::int32_t number) {
  const auto index = static_cast<std::size_t>(number) - 1;
  return index < kPlaces.size() ? kPlaces.at(index).code : "";
}

std::string PlaceOfProvince(std::string_view code) {
  const auto* found =
      std::find_if(kCompanyProvinces.begin(), kCompanyProvinces.end(),
                   [&](const CompanyProvince& province) { return province.code == code; });
  return found == kCompanyProvinces.end() ? std::string() : found->place;
}

}  // namespace lorvane

// Canadian province and territory names in their short and long forms. A
// text is compared upper-cased, exactly, with the written forms of each row;
// the first row that has it gives the result. Texts of no row (a state, a
// foreign region) pass through as they came. Two forms hold lower-case
// letters, "NEWFOUNDLAND And LABRADOR" and "Nfld.", and so never match: the
// table stands as the firm's data has always been read.

#include <array>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

struct ProvinceName {
  std::array<const char*, 5> forms;  // unused places are nullptr
  const char* abbreviated;
  const char* full;
};

constexpr ProvinceName kProvinceNames[] = {
    {{"ALBERTA", "ALTA.", "ALTA", "AB"}, "AB", "Alberta"},
    {{"BRITISHCOLUMBIA", "BRITISH COLUMBIA", "B.C.", "BC"}, "BC", "British Columbia"},
    {{"MANITOBA", "MAN.", "MAN", "MB"}, "MB", "Manitoba"},
    {{"ONTARIO", "ONT.", "ONT", "ON"}, "ON", "Ontario"},
    {{"SASKATCHEWAN", "SASK.", "SASK", "SK"}, "SK", "Saskatchewan"},
    {{"QUEBEC", "QUE.", "QUE", "QC"}, "QC", "Quebec"},
    {{"NOVASCOTIA", "NOVA SCOTIA", "N.S.", "NS"}, "NS", "Nova Scotia"},
    {{"NEWBRUNSWICK", "NEW BRUNSWICK", "N.B.", "NB"}, "NB", "New Brunswick"},
    {{"NEWFOUNDLAND", "NEWFOUNDLAND And LABRADOR", "NEWFOUNDLAND & LABRADOR", "Nfld.", "NL"},
     "NL",
     "Newfoundland"},
    {{"PRINCE EDWARD ISLAND", "PEI", "P.E.I."}, "PEI", "Prince Edward Island"},
    {{"NORTHWEST TERRITORIES", "N.W.T.", "NWT", "NT"}, "NT", "Northwest Territories"},
    {{"NUNAVUT", "NU"}, "NU", "Nunavut"},
    {{"YUKON", "YT"}, "YT", "Yukon"},
};

const ProvinceName* findProvince(const std::string& province) {
  const std::string upper = UCase(province);
  for (const ProvinceName& row : kProvinceNames) {
    for (const char* form : row.forms) {
      if (form != nullptr && upper == form) return &row;
    }
  }
  return nullptr;
}

}  // namespace

std::string clsInsertFieldsInRTB::getAbbreviatedProvince(const std::string& province) {
  Procedure proc(merge::traceName("getAbbreviatedProvince"));
  std::string result;
  proc.step([&] {
    const ProvinceName* row = findProvince(province);
    result = row != nullptr ? row->abbreviated : province;
  });
  return result;
}

std::string clsInsertFieldsInRTB::getFullProvinceString(const std::string& province) {
  Procedure proc(merge::traceName("getFullProvinceString"));
  std::string result;
  proc.step([&] {
    const ProvinceName* row = findProvince(province);
    result = row != nullptr ? row->full : province;
  });
  return result;
}

}  // namespace qb

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

// The column of the first row that has the text, or the text as it came.
std::string provinceForm(const char* procedure, const std::string& province,
                         const char* ProvinceName::*column) {
  Procedure proc(merge::traceName(procedure));
  std::string result;
  proc.step([&] {
    const std::string upper = UCase(province);
    result = province;
    for (const ProvinceName& row : kProvinceNames) {
      for (const char* form : row.forms) {
        if (form != nullptr && upper == form) {
          result = row.*column;
          return;
        }
      }
    }
  });
  return result;
}

}  // namespace

std::string clsInsertFieldsInRTB::getAbbreviatedProvince(const std::string& province) {
  return provinceForm("getAbbreviatedProvince", province, &ProvinceName::abbreviated);
}

std::string clsInsertFieldsInRTB::getFullProvinceString(const std::string& province) {
  return provinceForm("getFullProvinceString", province, &ProvinceName::full);
}

}  // namespace qb

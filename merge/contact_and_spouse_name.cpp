// getContactAndSpouseName: a contact and the spouse as one name, in natural
// order ("Ann & Bob Lee") or surname first ("Lee, Ann & Bob"). The form
// depends on which of the contact's names are there, whether the spouse
// shares the surname, and the order asked for; the two tables below hold
// every form, with F, L and D the contact's first, last and display names
// and SF, SL the spouse's first and last names.

#include <array>
#include <string>

#include "data/mod_database_functions.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "merge/merge_sql.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

// Rows: both names there, last name blank, first name blank, both blank.
// With a spouse the columns are: surname first with the same surname, surname
// first with another, natural order with the same, natural order with another.
// Where both of the contact's names and the spouse's surname differ in the
// last cell, the spouse drops out and D stands alone: as the firm's lists
// have always shown it.
constexpr std::array<std::array<const char*, 4>, 4> kWithSpouse = {{
    {"L, F & SF", "L, F & SL, SF", "F & SF L", "F L & SF SL"},
    {"SL, F & SF", "F & SL, SF", "F & SF SL", "F & SF SL"},
    {"L, SF", "L & SL, SF", "SF L", "L & SF SL"},
    {"D & SL, SF", "D & SL, SF", "D & SF SL", "D"},
}};
// Without a spouse: surname first, natural order.
constexpr std::array<std::array<const char*, 2>, 4> kWithoutSpouse = {{
    {"L, F", "F L"},
    {"F", "F"},
    {"L", "L"},
    {"D", "D"},
}};

struct Names {
  std::string first, last, display, spouseFirst, spouseLast;
};

// The form with each name put in: the tokens F, L, D, SF and SL stand for
// names; everything else (", ", " & ", " ") stands for itself.
std::string fill(const char* form, const Names& names) {
  std::string result;
  for (const char* at = form; *at != '\0';) {
    if (at[0] == 'S' && at[1] == 'F') {
      result += names.spouseFirst, at += 2;
    } else if (at[0] == 'S' && at[1] == 'L') {
      result += names.spouseLast, at += 2;
    } else if (*at == 'F') {
      result += names.first, ++at;
    } else if (*at == 'L') {
      result += names.last, ++at;
    } else if (*at == 'D') {
      result += names.display, ++at;
    } else {
      result += *at++;
    }
  }
  return result;
}

std::string coupleName(const Names& names, bool lastNameFirst) {
  const bool lastBlank = isBlankValue(Variant(names.last));
  const bool firstBlank = isBlankValue(Variant(names.first));
  const size_t row = lastBlank && firstBlank ? 3 : lastBlank ? 1 : firstBlank ? 2 : 0;
  if (isBlankValue(Variant(names.spouseFirst))) {
    return fill(kWithoutSpouse[row][lastNameFirst ? 0 : 1], names);
  }
  const bool sameSurname =
      !isBlankValue(Variant(names.spouseLast)) && UCase(names.spouseLast) == UCase(names.last);
  const size_t column = (lastNameFirst ? 0 : 2) + (sameSurname ? 0 : 1);
  return fill(kWithSpouse[row][column], names);
}

}  // namespace

std::string clsInsertFieldsInRTB::getContactAndSpouseName(int32_t contactID, bool lastNameFirst) {
  Procedure proc(merge::traceName("getContactAndSpouseName"));
  std::string result;
  bool connected = false;
  proc.step([&] { connected = merge::store().isConnected(); });
  if (!connected) return result;
  DatabaseReference& store = merge::store();
  proc.step([&] {
    if (contactID < 0 || contactID == contactID_) return;
    if (!modDatabaseFunctions::validContactID(std::to_string(contactID))) return;
    contactID_ = contactID;
    if (store.isRecordsetOpen(contactRecordset_)) store.closeRecordset(contactRecordset_);
    contactRecordset_ = store.openRecordset(merge_sql::kContact + std::to_string(contactID) + ";",
                                            adOpenKeyset, adLockReadOnly);
  });
  proc.step([&] {
    if (!store.isRecordsetOpen(contactRecordset_)) {
      contactRecordset_ =
          store.openRecordset(merge_sql::kAllContacts, adOpenKeyset, adLockReadOnly);
    }
  });
  bool found = false;
  proc.step([&] {
    merge::yieldBeforeFind();
    found = store.findRecord(contactRecordset_, "ContactID", std::to_string(contactID));
  });
  if (!found) return result;
  Names names;
  proc.step([&] {
    auto read = [&](const char* column) {
      return toText(store.getFieldValue(contactRecordset_, Variant(column)));
    };
    names = {read("FirstName"), read("LastName"), read("DisplayName"), read("SpouseFirstName"),
             read("SpouseLastName")};
    result = coupleName(names, lastNameFirst);
  });
  return result;
}

}  // namespace qb

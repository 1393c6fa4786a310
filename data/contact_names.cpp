// Contact display names: one row of Contacts as the text lists and titles
// show, given name first (type 2) or surname first (type 3), with the spouse
// when the contact is a couple, and the family relationship when asked.

#include "data/mod_database_functions.h"
#include "data/module_support.h"
#include "data/query_shape.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb::modDatabaseFunctions {

namespace {

// The parts of a name: first, last and display name, spouse's first and last.
struct NameParts {
  std::string F, L, D, SF, SL;
};

// Name patterns by [spouse: 0 none, 1 same surname, 2 different surname]
// [L present * 2 + F present]. {X} stands for a part; every other character,
// blanks, "&" and commas included, is part of the name.
using NameTable = const char* [3][4];

constexpr NameTable kGivenNameFirst = {
    {"{D}", "{F}", "{L}", "{F} {L}"},
    {"{D} & {SF} {SL}", "{F} & {SF} {SL}", "{SF} {L}", "{F} & {SF} {L}"},
    {"{D}", "{F} & {SF} {SL}", "{L} & {SF} {SL}", "{F} {L} & {SF} {SL}"},
};

constexpr NameTable kSurnameFirst = {
    {"{D}", "{F}", "{L}", "{L}, {F}"},
    {"{D} & {SL}, {SF}", "{SL}, {F} & {SF}", "{L}, {SF}", "{L}, {F} & {SF}"},
    {"{D} & {SL}, {SF}", "{F} & {SL}, {SF}", "{L} & {SL}, {SF}", "{L}, {F} & {SL}, {SF}"},
};

// The pattern with its parts put in, in one pass: a name holding "{F}" is
// not read again.
std::string fillPattern(const std::string& pattern, const NameParts& parts) {
  std::string out;
  for (size_t i = 0; i < pattern.size(); ++i) {
    size_t end = pattern[i] == '{' ? pattern.find('}', i) : std::string::npos;
    if (end == std::string::npos) {
      out += pattern[i];
      continue;
    }
    std::string key = pattern.substr(i + 1, end - i - 1);
    out += key == "F"    ? parts.F
           : key == "L"  ? parts.L
           : key == "D"  ? parts.D
           : key == "SF" ? parts.SF
                         : parts.SL;
    i = end;
  }
  return out;
}

// The name in the given form; the couple's spouse part counts only when the
// spouse's first name is there.
std::string composeName(int32_t displayType, const NameParts& parts, bool couple) {
  if (displayType != 2 && displayType != 3) return parts.D;
  const NameTable& table = displayType == 2 ? kGivenNameFirst : kSurnameFirst;
  int spouse = 0;
  if (couple && !parts.SF.empty()) {
    bool sameSurname = !parts.SL.empty() && UCase(parts.SL) == UCase(parts.L);
    spouse = sameSurname ? 1 : 2;
  }
  int names = (parts.L.empty() ? 0 : 2) + (parts.F.empty() ? 0 : 1);
  return fillPattern(table[spouse][names], parts);
}

}  // namespace

std::string getContactNameDisplayedByType(int32_t displayType, int32_t contactID,
                                          int32_t relatedContactID, bool showRelationship) {
  Procedure proc(traceName("getContactNameDisplayedByType"));
  std::string result;
  QueryShape query(proc);  // a failure keeps the name built so far
  if (!query.connected()) return result;
  query.open(
      "SELECT Contacts.ContactID, Contacts.FirstName, Contacts.LastName, Contacts.DisplayName, "
      "Contacts.ContactPersonalTaxDisplayType, Contacts.SpouseFirstName, Contacts.SpouseLastName "
      "FROM Contacts WHERE Contacts.ContactID=" +
      std::to_string(contactID) + ";");
  if (query.moveFirst()) {
    NameParts parts;
    bool couple = false;
    auto trimmed = [&](const char* name) { return Trim(toText(query.field(name))); };
    query.step([&] {
      parts.F = trimmed("FirstName");
      parts.L = trimmed("LastName");
      parts.D = trimmed("DisplayName");
    });
    query.step([&] {
      couple = !query.isBlank("ContactPersonalTaxDisplayType") &&
               CDbl(query.field("ContactPersonalTaxDisplayType")) == 2;
    });
    if (couple) {
      query.step([&] {
        parts.SF = trimmed("SpouseFirstName");
        parts.SL = trimmed("SpouseLastName");
      });
    }
    query.step([&] { result = composeName(displayType, parts, couple); });

    if (relatedContactID >= 0 && (showRelationship || relationshipSetting() == 2)) {
      // The link's recordset is open together with the contact's.
      QueryShape link(proc);
      link.readFirstRow(
          "SELECT ContactLinks.ContactIDNum, ContactLinks.ContactNum, "
          "ContactLinks.FamilyRelationship FROM ContactLinks WHERE ContactLinks.ContactNum=" +
              std::to_string(contactID) +
              " AND ContactLinks.ContactIDNum = " + std::to_string(relatedContactID) + ";",
          [&] {
            if (link.isBlank("FamilyRelationship")) return;
            std::string relationship = toText(link.field("FamilyRelationship"));
            if (relationship != "Not Specified") result += " (" + relationship + ")";
          });
    }
  }
  query.close();
  return result;
}

std::string getContactNameDisplayed(int32_t contactID, int32_t relatedContactID,
                                    bool showRelationship) {
  Procedure proc(traceName("getContactNameDisplayed"));
  std::string result;
  proc.step([&] {
    result =
        getContactNameDisplayedByType(displayType(), contactID, relatedContactID, showRelationship);
  });
  return result;
}

}  // namespace qb::modDatabaseFunctions

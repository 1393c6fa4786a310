#pragma once
// The SQL texts of the merge's kept recordsets. A text that does not end in
// ";" takes the item's id in decimal and ";".

namespace qb::merge_sql {

// The contact with its five custom columns under the merge's aliases.
inline constexpr const char* kContact =
    "SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, Contacts.Custom2 AS ContactCustom2, "
    "Contacts.Custom3 AS ContactCustom3, Contacts.Custom4 AS ContactCustom4, Contacts.Custom5 AS "
    "ContactCustom5 From Contacts WHERE Contacts.ContactID=";
// Every contact, for a run over many clients.
inline constexpr const char* kAllContacts =
    "SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, Contacts.Custom2 AS ContactCustom2, "
    "Contacts.Custom3 AS ContactCustom3, Contacts.Custom4 AS ContactCustom4, Contacts.Custom5 AS "
    "ContactCustom5 From Contacts;";

}  // namespace qb::merge_sql

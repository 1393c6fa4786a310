#pragma once
// modFormatAddresses: postal address blocks, plain or with RTF paragraph
// marks, and the rich-text summaries of a contact or firm employee that are
// stored beside the person and copied into the notes of the companies whose
// default contact the person is.
//
// Every function traces as "Orvanta.exe-modFormatAddresses-<name>"; a failure
// goes to its own handler and the caller gets what the function held by then
// (the empty text at the earliest). Arguments passed by reference stand as
// the callers of this module pass them; only createBusinessContactAddress
// changes one (companyID).
//
// Line breaks are "\r\n". Blank means isBlankValue.

#include <cstdint>
#include <string>

#include "render/address_record.h"

namespace qb::modFormatAddresses {

// ---- Address blocks --------------------------------------------------------

// Sets all thirteen fields to "".
void clearAddressFields(AddressRecord& address);

// The postal block: the business name (then the contact's name when
// includeContactName), or the contact's name alone when there is no business;
// the street, or an empty line in its place when only the city follows; the
// city line "City, Province  Postal"; a country line unless the country is a
// Canadian name ("CANADA", "CA", "CAN", "CDA" in any case). Values are trimmed.
// With convertRTF each line break is followed by "\par " and stored values
// are escaped for RTF. "" when every field is blank.
std::string createAddress(AddressRecord& address, bool& includeContactName, bool& convertRTF);

// createAddress followed by a line per filled contact field ("Phone: ",
// "Fax: ", "Cell: ", "Home: ", "Email: ", "Web Site: "), written as stored.
// With convertRTF and at least one contact line the whole text is converted
// again, so the address's breaks carry "\par \par ".
std::string createAddressWithContactInfo(AddressRecord& address, bool& includeContactName,
                                         bool& convertRTF);

// The address of a firm employee (when employeeID is valid) or a contact,
// trimmed, a line break at its end cut too (RTF paragraph marks stay).
// companyID is in and out: for a contact it becomes -1 when it is
// not a valid company; for an employee it becomes -1 when it IS a valid firm
// id, and otherwise the firm's id, whose address an inheriting employee then
// shows. An inheriting contact shows its company's address and, when it has
// no phone of its own, the office number. "" for an unknown person or a store
// that is not connected.
std::string createBusinessContactAddress(int32_t& contactID, bool& convertRTF, int32_t& employeeID,
                                         int32_t& companyID, bool& includeAddress,
                                         bool& includePhones, bool& includeEmail,
                                         bool& includeBusinessName);

// Every "\r\n" becomes "\r\n\par "; characters outside ASCII become RTF
// escapes of code page 1252. "\", "{" and "}" are left alone.
std::string convertToRTF(std::string text);

// ---- Contact summaries -----------------------------------------------------

// Composes the RTF summary of an employee (when employeeID is valid) or a
// contact, stores it (AccountantEmployeeInfo.BusinessNotes for an employee,
// ContactsNotes.BusinessNotes for a contact, adding a notes row when there is
// none) and returns it. companyID is the company whose view the summary takes
// (its default-contact line and an inherited address). For a contact, unless
// skipOtherCompanies, the copy in the notes of every company it is default
// contact of is refreshed too. "" and nothing written for an unknown person.
std::string saveContactBusinessRTF(int32_t& contactID, int32_t& employeeID, int32_t& companyID,
                                   bool skipOtherCompanies);

// Writes the contact's summary into CompaniesNotes.ContactNotes of every
// company the contact is default contact of: rtfText for companyID, a summary
// composed for that company's view (which also rewrites the contact's own
// BusinessNotes) for every other one.
void saveContactBusinessRTFForAllCompanies(int32_t contactID, int32_t companyID,
                                           std::string& rtfText);

// Writes the company's ContactNotes: the summary of contactID (0 or more), or
// the "No Default Contact Selected." text. Nothing when the company or its
// notes row does not exist.
void saveCompanyContactRTF(int32_t companyID, int32_t contactID);

// The RTF document that says the company has no default contact.
std::string saveNoDefaultComment();

}  // namespace qb::modFormatAddresses

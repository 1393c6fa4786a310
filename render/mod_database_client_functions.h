#pragma once
// modDatabaseClientFunctions: the default-contact rule. Of the contacts a
// company has through ContactLinks exactly one carries DefaultContact, and the
// company row keeps a copy of that contact's name, phone, fax and e-mail
// (DefaultContactName, DefaultContactPhoneNumber, DefaultContactFaxNumber,
// DefaultContactEmail) so that company lists need no join.
//
// The functions keep the rule and refresh the stored summaries of
// modFormatAddresses that show it, which is why the module lives beside them.
// Each traces as "Orvanta.exe-modDatabaseClientFunctions-<name>"; a failure
// goes to its own handler and the caller goes on. Nothing shows a message.

#include <cstdint>

namespace qb::modDatabaseClientFunctions {

// The company's default contact; -1 when there is none or the store is not
// connected. A company without links is given empty default fields (and its
// "No Default Contact Selected." notes). With makeFirstDefault, a company
// that has links but no default gets its first link as default.
int32_t checkForDefaultContact(int32_t companyID, bool makeFirstDefault);

// Makes contactID the company's only default link (a contact without a link
// leaves none), then refreshes the company's copy of the default's details.
// Unless skipSummary, each linked contact's summary and the company's copy of
// the default's summary are rewritten on the way.
void setContactAsDefault(int32_t contactID, int32_t companyID, bool& skipSummary);

// Refreshes the company's copy of its default's details and, unless
// skipSummary, writes the "No Default Contact Selected." notes.
void setNoContactAsDefault(int32_t companyID, bool& skipSummary);

// Copies the default contact's DisplayName, BusinessPhone_Main,
// BusinessPhone_Fax and BusinessEmail into the company row, in that order; all
// four become "" when there is no valid default.
void updateDefaultContactInfo(int32_t companyID);

// The contact of the company's default link; -1 when the company has no
// links. A company that has links and none marked default is repaired on the
// way: its first link becomes the default, and that contact's id is returned.
// A default link whose contact has no row is answered as it stands.
int32_t getDefaultContactIDFromCompanyID(int32_t companyID);

// True when the contact's link to the company is the default one; false when
// it is not, there is no link, or the store is not connected.
bool isContactDefaultContact(int32_t companyID, int32_t contactID);

}  // namespace qb::modDatabaseClientFunctions

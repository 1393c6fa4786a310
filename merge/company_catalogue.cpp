// The company catalogue: the fields of a company, in one fixed run, then its
// five custom fields and its notes. The two WebSite rows differ only in their
// samples, and the alternate address's province, postal code and country are
// 255 long where the company's own are 50: as the firm's lists have them.

#include "merge/catalogue_builder.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"

namespace qb {

namespace {

constexpr CatalogueRow kCompanyRows[] = {
    {"CompanyName", "Company Name", 1, "ABC Consulting", 255},
    {"ClientID", "Client ID", 1, "B34", 255},
    {"CorporateName", "Corporate Name", 1, "ABC Consulting Corp.", 255},
    {"CompanyType", "Company Type", 1, "Corporation", 50},
    {"IndustryType", "Industry Type", 1, "Consulting", 100},
    {"Address1", "Address 1", 1, "100 Sussex Drive", 255, kMapping},
    {"Address2", "Address 2", 1, "100 Sussex Drive", 255, kMapping},
    {"Address3", "Address 3", 1, "100 Sussex Drive", 255, kMapping},
    {"Address", "Address", 1, "100 Sussex Drive", 255, kNotMapping},
    {"City", "City", 1, "Ottawa", 50},
    {"Province", "Province", 1, "Ontario", 50, kCanada},
    {"AbbreviatedProvince", "Abbreviated Province", 1, "ON", 50, kCanadaNotMapping},
    {"PostalCode", "Postal Code", 1, "K2G 0Z1", 50, kCanada},
    {"Province", "State", 1, "California", 50, kNotCanada},
    {"PostalCode", "Zip Code", 1, "90210", 50, kNotCanada},
    {"Country", "Country", 1, "Canada", 50},
    {"OfficeNumber", "Office Number", 1, "(555) 453-2947", 50},
    {"AltPhoneNumber", "Alternate Phone Number", 1, "(555) 453-2947", 50},
    {"FaxNumber", "Fax Number", 1, "(555) 453-3756", 50},
    {"Email", "Email", 1, "info@abcconsulting.com", 255},
    {"WebSite", "Web Site", 1, "www.abcconsulting.ca", 255, kCanada},
    {"WebSite", "Web Site", 1, "www.abcconsulting.com", 255, kNotCanada},
    {"FaceBookURL", "Company FaceBook URL", 1, "www.facebook.com/abcconsulting", 255},
    {"TwitterAccount", "Company Twitter Account", 1, "www.twitter.com/abcconsulting", 255},
    {"PartnerName", "Supervising Partner", 1, "Susan Partner", 255},
    {"AccountantName", "Managing Accountant", 1, "John Accountant", 255},
    {"AltAddress1", "Company Alternate Address 1", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress2", "Company Alternate Address 2", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress3", "Company Alternate Address 3", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress", "Company Alternate Address", 1, "101 Finchley St.", 255, kNotMapping},
    {"AltCity", "Company Alternate City", 1, "Toronto", 50},
    {"AltProvince", "Company Alternate Province", 1, "Ontario", 50, kCanada},
    {"AltAbbreviatedProvince", "Company Alternate Abbreviated Province", 1, "ON", 255,
     kCanadaNotMapping},
    {"AltPostalCode", "Company Alternate Postal Code", 1, "M4R 3T6", 255, kCanada},
    {"AltProvince", "Company Alternate State", 1, "California", 255, kNotCanada},
    {"AltPostalCode", "Company Alternate Zip Code", 1, "90210", 255, kNotCanada},
    {"AltCountry", "Company Alternate Country", 1, "Canada", 255},
};

constexpr CustomBlock kCompanyCustomBlock = {
    "SELECT CustomAddressFields.* FROM CustomAddressFields;", "CompanyCustom", "CompanyLabel",
    "Company Custom Field ", "Company Custom Info "};

constexpr CatalogueRow kCompanyNotesRow[] = {{"Notes", "Company Notes", 1, "Company Notes", -1}};

}  // namespace

void clsInsertFieldsInRTB::createCompanyInfoFieldListStructure(bool& bypassListBox) {
  Procedure proc(merge::traceName("createCompanyInfoFieldListStructure"));
  CatalogueBuilder build(*this, proc, listBox_, bypassListBox);
  build.rows("CompanyInfo", kCompanyRows);
  build.customBlock("CompanyInfo", kCompanyCustomBlock);
  build.rows("CompanyNotes", kCompanyNotesRow);
}

}  // namespace qb

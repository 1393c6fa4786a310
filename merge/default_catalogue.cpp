// The default catalogue: createDefaultFieldListStructure walks the sections
// of the field list in their fixed order, adds the contact, accounting,
// software and further contact rows itself, calls the company and activity
// catalogues where ListType asks for them, and ends with the firm's rows.

#include <cstdint>

#include "merge/catalogue_builder.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/controls/list_box.h"
#include "services/host/locale_reference.h"

namespace qb {

namespace {

constexpr CatalogueRow kContactNameRows[] = {
    {"DisplayName", "Contact Full Name", 1, "Jane Smith", 255, kMapping},
    {"DisplayName", "Contact Display Name", 1, "Jane Smith", 255, kNotMapping},
    {"ContactAndSpouseName", "Contact & Spouse Name", 1, "John & Jane Smith", 255, kNotMapping},
    {"ClientID", "Client ID", 1, "A24", 50},
    {"NamePrefix", "Contact Name Prefix", 1, "Ms.", 50},
    {"FirstName", "Contact First Name", 1, "Jane", 100},
    {"MiddleName", "Contact Middle Name", 1, "Jackie", 100},
    {"LastName", "Contact Last Name", 1, "Smith", 100},
    {"NameSuffix", "Contact Name Suffix", 1, "CGA", 50},
};

constexpr CatalogueRow kAccountingRows[] = {
    {"BusinessNumber", "Business Number", 1, "19284 375", 50, kCanada},
    {"RC59Permission", "RC59 Permission Level", 1, "Full", 50, kCanada},
    {"RC59Status", "RC59 Form Status", 1, "CRA Processing", 50, kCanada},
    {"GSTNumber", "{GST} Number", 1, "19284 375 RT0001", 50, kCanada},
    {"GSTFilingMethod", "{GST} Filing Method", 1, "Quick Method", 50, kCanada},
    {"PSTNumber", "{PST} Number", 1, "18274375", 50, kCanada},
    {"PayrollNumber", "Payroll Number", 1, "19284 375 RP0001", 50, kCanada},
    {"PayrollRegisteredAs", "Payroll Registered As", 1, "1827455 Ontario Corp.", 255, kCanada},
    {"YearEndDate", "Year End Date", 2, "03/31/{YEAR}", -1, kCanada},
    {"FederalCorpNumber", "Federal Corp. Tax Number", 1, "19284 375 RC0001", 50, kCanada},
    {"ONCorpNumber", "{PROVINCE} Corp. Tax Number", 1, "198475", 50, kCanada},
    {"MCBS", "Quebec ID Number", 1, "94837284", 50, inProvince(8)},
    {"MCBS", "ON Corp. MCBS Number", 1, "94837284", 50, inProvince(3)},
    {"IncorporationDate", "Incorporation Date", 2, "{DATE:THIS-11-01}", kLeftOut, kCanada},
    {"FinancialStatements", "Financial Statements", 1, "Compilation (NTR)", 50, kCanada},
    {"CorporationType", "Corporation Type", 1, "CCPC", 50, kCanada},
    {"CorporationLevel", "Corporation Level", 1, "Federal Corporation", 50, kCanada},
    {"CharitableNum", "Charitable Number", 1, "3828374", 50, kCanada},
    {"WSIBNumber", "NEQ Number", 1, "3829394", 50, inProvince(8)},
    {"WSIBNumber", "{BOARD} Number", 1, "3829394", 50, outsideProvince(8)},
    {"WSIBFirmNumber", "{BOARD} Firm Number", 1, "19283743", 50, inProvince(3)},
    {"WSIBPremiumRate", "{BOARD} Premium Rate", 1, "$2.98", 50, kCanada},
    {"Coverage", "{BOARD} Coverage", 1, "$50,000", 50, kCanada},
    {"EHTNumber", "EHT Number", 1, "03948483", 50, kCanada},
    {"EHTPremiumRate", "EHT Premium Rate", 1, "$5.98", 50, kCanada},
    {"NameRenewalDate", "Name Renewal Date", 2, "05/28/2003", -1, kCanada},
    {"LawSocietyMemberNumber", "Law Society Member Number", 1, "39348457473", 50, kCanada},
    // The line the user clicks has two blanks, the name inserted one.
    {"EIN", "Federal Employer Identification Number", 1, "45-6547893", 50, kNotCanada,
     "Federal Employer Identification  Number"},
    {"SellersPermitNum", "Sellers Permit Number", 1, "54777", 50, kNotCanada},
    {"USYearEndDate", "Year End Date", 2, "12/31{YEAR}", -1, kNotCanada},
    {"SoSFileNum", "Secretary of State File Number", 1, "548774", 50, kNotCanada},
    {"USIncorporationDate", "Incorporation Date", 2, "12/31/05", -1, kNotCanada},
    {"PropertyTaxNum", "Property Tax Number", 1, "541254", 50, kNotCanada},
    {"Form637RegNum", "Form 637 Registration Number", 1, "8457455", 50, kNotCanada},
    {"TCN", "Terminal Control Number", 1, "15414", 50, kNotCanada},
    {"TerminalName", "Terminal Name", 1, "Joe's Garage", 150, kNotCanada},
    {"TerminalLocation", "Terminal Location", 1, "California Airstrip", 250, kNotCanada},
    {"AlcoholNum", "Alcohol Number", 1, "AL-38474", 50, kNotCanada},
};

constexpr CustomBlock kClientCustomBlock = {"SELECT CustomFields.* FROM CustomFields;",
                                            "ClientCustom", "CustomName", "Custom Field ",
                                            "Custom Info "};

constexpr CatalogueRow kSoftwareRows[] = {
    {"SoftwareName", "Software Name", 1, "Simply Accounting 2005 Pro", 255},
    {"SoftwareSerialNumber", "Software Serial Number", 1, "KQZ2 7PLM XR5", 50},
    {"SoftwareVersion", "Software Version", 1, "12.5", 50},
    {"SoftwareAccountNumber", "Software Account Number", 1, "DR 459685", 50},
    {"FileSavedAs", "Data File Saved As", 1, "C:\\Data\\Client Data.cft", 255},
    {"UserName", "User Name", 1, "JohnSmith", 255},
    {"Password", "Password", 1, "Sample42x", 255},
};

// The spouse's birthday is a text field and the spouse's address lines are
// 50 long where the contact's are 255: both as the firm's lists have them.
constexpr CatalogueRow kMoreContactRows[] = {
    {"SocialInsuranceNumber", "Contact SIN", 1, "987 630 098", 20, kCanada},
    {"SocialInsuranceNumber", "Contact SSN", 1, "987 630 098", 20, kNotCanada},
    {"EmployeeType", "Contact Employee Type", 1, "Full-Time", 50},
    {"PercentageOwnership", "Contact Percentage Ownership", 1, "100%", 10},
    {"BusinessName", "Contact Business Name", 1, "Test Accounting Company", 255},
    {"BusinessJobTitle", "Contact Job Title", 1, "CEO", 150},
    {"BusinessDepartment", "Contact Business Department", 1, "Accounting Dept.", 100},
    {"BusinessOffice", "Contact Business Office", 1, "Office 213, 2nd Floor", 100},
    {"BusinessPhone_Main", "Contact Business Phone", 1, "(416) 555-3985", 50},
    {"BusinessAltPhoneNumber", "Contact Business Alt. Phone", 1, "(416) 555-4568", 50},
    {"BusinessPhone_Cell", "Contact Business Cell", 1, "(416) 555-1009", 50},
    {"BusinessPhone_Pager", "Contact Business Pager", 1, "(416) 555-5643", 50},
    {"BusinessPhone_Fax", "Contact Business Fax", 1, "(416) 555-9871", 50},
    {"BusinessAddress1", "Contact Business Address 1", 1, "101 Industrial Dr.", 255, kMapping},
    {"BusinessAddress2", "Contact Business Address 2", 1, "101 Industrial Dr.", 255, kMapping},
    {"BusinessAddress3", "Contact Business Address 3", 1, "101 Industrial Dr.", 255, kMapping},
    {"BusinessAddress", "Contact Business Address", 1, "101 Industrial Dr.", 255, kNotMapping},
    {"BusinessCity", "Contact Business City", 1, "Toronto", 50},
    {"BusinessProvince", "Contact Business Province", 1, "Ontario", 50, kCanada},
    {"BusinessAbbreviatedProvince", "Contact Business Abbreviated Province", 1, "ON", 50,
     kCanadaNotMapping},
    {"BusinessPostalCode", "Contact Business Postal Code", 1, "M3R 1F5", 50, kCanada},
    {"BusinessProvince", "Contact Business State", 1, "California", 50, kNotCanada},
    {"BusinessPostalCode", "Contact Business Zip Code", 1, "90210", 50, kNotCanada},
    {"BusinessCountry", "Contact Business Country", 1, "Country", 50},
    {"BusinessWebSite", "Contact Business Web Site", 1, "www.testaccounting.com", 255},
    {"BusinessEmail", "Contact Business Email", 1, "jane.smith@testaccounting.com", 255},
    {"BusinessFaceBookURL", "Contact Business FaceBook URL", 1, "www.facebook.com/testaccounting",
     255},
    {"BusinessTwitterAccount", "Contact Business Twitter Account", 1,
     "www.twitter.com/testaccounting", 255},
    {"HomePhone_Main", "Contact Personal Phone", 1, "(613) 555-4938", 50},
    {"HomePhone_Cell", "Contact Personal Cell", 1, "(613) 555-1034", 50},
    {"HomePhone_Pager", "Contact Personal Pager", 1, "(613) 555-9875", 50},
    {"HomePhone_Fax", "Contact Personal Fax", 1, "(613) 555-9254", 50},
    {"PersonalWebSite", "Contact Personal Web Site", 1, "www.janesmith.com", 255},
    {"PersonalEmail", "Contact Personal Email", 1, "jane@janesmith.com", 255},
    {"PersonalFaceBookURL", "Contact Personal FaceBook URL", 1, "www.facebook.com/janesmith", 255},
    {"PersonalTwitterAccount", "Contact Personal Twitter Account", 1, "www.twitter.com/janesmith",
     255},
    {"HomeAddress1", "Contact Home Address 1", 1, "101 Finchley St.", 255, kMapping},
    {"HomeAddress2", "Contact Home Address 2", 1, "101 Finchley St.", 255, kMapping},
    {"HomeAddress3", "Contact Home Address 3", 1, "101 Finchley St.", 255, kMapping},
    {"HomeAddress", "Contact Home Address", 1, "101 Finchley St.", 255, kNotMapping},
    {"HomeCity", "Contact Home City", 1, "Toronto", 50},
    {"HomeProvince", "Contact Home Province", 1, "Ontario", 50, kCanada},
    {"HomeAbbreviatedProvince", "Contact Home Abbreviated Province", 1, "ON", 50,
     kCanadaNotMapping},
    {"HomePostalCode", "Contact Home Postal Code", 1, "M4R 3T6", 50, kCanada},
    {"HomeProvince", "Contact Home State", 1, "California", 50, kNotCanada},
    {"HomePostalCode", "Contact Home Zip Code", 1, "90210", 50, kNotCanada},
    {"HomeCountry", "Contact Home Country", 1, "Canada", 50},
    {"Children", "Contact Children", 1, "Tom & Erin Smith", 255},
    {"Gender", "Contact Gender", 1, "Female", 50},
    {"Birthday", "Contact Birthday", 2, "{DATE:1951-06-25}", -1},
    {"Anniversary", "Contact Anniversary", 2, "{DATE:1975-04-25}", -1},
    {"SpokenLanguage", "Contact Spoken Language", 1, "English", 50},
    {"MaritialStatus", "Contact Marital Status", 1, "Married", 50},
    {"SpouseNamePrefix", "Spouse Name Prefix", 1, "Mr.", 50},
    {"SpouseFirstName", "Spouse First Name", 1, "John", 100},
    {"SpouseMiddleName", "Spouse Middle Name", 1, "Henry", 100},
    {"SpouseLastName", "Spouse Last Name", 1, "Smith", 100},
    {"SpouseNameSuffix", "Spouse Name Suffix", 1, "Jr.", 50},
    {"SpouseName", "Spouse Display Name", 1, "John Smith", 150},
    {"SpouseEmail", "Spouse Personal Email", 1, "john@janesmith.com", 255},
    {"SpousePhone_Main", "Spouse Home Phone", 1, "(555) 555-4954", 50},
    {"SpousePhone_Cell", "Spouse Personal Cell", 1, "(555) 555-9812", 50},
    {"SpouseAddress1", "Spouse Home Address 1", 1, "101 Finchley St.", 50, kMapping},
    {"SpouseAddress2", "Spouse Home Address 2", 1, "101 Finchley St.", 50, kMapping},
    {"SpouseAddress3", "Spouse Home Address 3", 1, "101 Finchley St.", 50, kMapping},
    {"SpouseAddress", "Spouse Home Address", 1, "101 Finchley St.", 50, kNotMapping},
    {"SpouseCity", "Spouse Home City", 1, "Toronto", 50},
    {"SpouseProvince", "Spouse Home Province", 1, "Ontario", 50, kCanada},
    {"SpouseAbbreviatedProvince", "Spouse Home Abbreviated Province", 1, "ON", 50,
     kCanadaNotMapping},
    {"SpousePostalCode", "Spouse Home Postal Code", 1, "M4R 3T6", 50, kCanada},
    {"SpouseProvince", "Spouse Home State", 1, "California", 50, kNotCanada},
    {"SpousePostalCode", "Spouse Home Zip Code", 1, "90210", 50, kNotCanada},
    {"SpouseCountry", "Spouse Home Country", 1, "Canada", 50},
    {"SpouseGender", "Spouse Gender", 1, "Female", 50},
    {"SpouseBirthday", "Spouse Birthday", 1, "{DATE:1950-04-29}", -1},
    {"SpouseSIN", "Spouse SIN", 1, "625 845 147", 20, kCanada},
    {"SpouseSIN", "Spouse SSN", 1, "625 845 147", 20, kNotCanada},
    {"AltAddress1", "Contact Alternate Address 1", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress2", "Contact Alternate Address 2", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress3", "Contact Alternate Address 3", 1, "101 Finchley St.", 255, kMapping},
    {"AltAddress", "Contact Alternate Address", 1, "101 Finchley St.", 255, kNotMapping},
    {"AltCity", "Contact Alternate City", 1, "Toronto", 50},
    {"AltProvince", "Contact Alternate Province", 1, "Ontario", 50, kCanada},
    {"AltAbbreviatedProvince", "Contact Alternate Abbreviated Province", 1, "ON", 50,
     kCanadaNotMapping},
    {"AltPostalCode", "Contact Alternate Postal Code", 1, "M4R 3T6", 50, kCanada},
    {"AltProvince", "Contact Alternate State", 1, "California", 50, kNotCanada},
    {"AltPostalCode", "Contact Alternate Zip Code", 1, "90210", 50, kNotCanada},
    {"AltCountry", "Contact Alternate Country", 1, "Canada", 50},
};

constexpr CustomBlock kContactCustomBlock = {
    "SELECT CustomAddressFields.* FROM CustomAddressFields;", "ContactCustom", "ContactLabel",
    "Contact Custom Field ", "Contact Custom Info "};

constexpr CatalogueRow kContactNotesRow[] = {{"Notes", "Contact Notes", 1, "Notes", -1}};

// What a section holds beyond its header lines.
enum class Content {
  Appointment,
  Task,
  TimeEntry,
  Company,
  HeaderOnly,  // the contact name rows of the next section follow
  ContactNames,
  Accounting,
  Software,
  MoreContact,
  CompanyOfContact,  // a contact's company, when companyID is 0 or more
};

// The ListType values of a section, as bits.
constexpr uint32_t types(std::initializer_list<int> listTypes) {
  uint32_t bits = 0;
  for (int type : listTypes) bits |= 1u << type;
  return bits;
}

struct Section {
  uint32_t listTypes;
  uint32_t blankLineFor;  // the types that get a blank line ahead of the header
  const char* header;     // nullptr: none
  Content content;
};

// The sections in their order. A time entry's company section has no blank
// line ahead of its header where an appointment's and a task's have one.
constexpr Section kSections[] = {
    {types({5}), 0, "[Appointment Info]", Content::Appointment},
    {types({8}), 0, "[Task Info]", Content::Task},
    {types({6}), 0, "[Time Entry Info]", Content::TimeEntry},
    {types({1, 2, 5, 6, 8}), types({5, 8}), "[Company Address Info]", Content::Company},
    {types({1, 5, 6, 8}), types({1, 5, 6, 8}), "[Default Contact Name]", Content::HeaderOnly},
    {types({2, 3}), types({2, 3}), "[Contact Name]", Content::HeaderOnly},
    {types({1, 2, 3, 5, 6, 8}), 0, nullptr, Content::ContactNames},
    {types({1, 2, 5, 6, 8}), types({1, 2, 5, 6, 8}), "[Company Accounting Info]",
     Content::Accounting},
    {types({1, 2, 5, 6, 8}), types({1, 2, 5, 6, 8}), "[Company Software Info]", Content::Software},
    {types({1, 2, 3, 5, 6, 8}), types({1, 2, 3, 5, 6, 8}), "[More Contact Info]",
     Content::MoreContact},
    {types({3}), types({3}), "[Company Info]", Content::CompanyOfContact},
};

bool isIn(uint32_t bits, int32_t listType) {
  return listType >= 0 && listType < 32 && (bits & (1u << listType)) != 0;
}

}  // namespace

void clsInsertFieldsInRTB::createDefaultFieldListStructure(bool& bypassListBox,
                                                           bool& clearListbox) {
  Procedure proc(merge::traceName("createDefaultFieldListStructure"));
  // A list box that is set is always filled: the caller can't bypass it.
  bypassListBox = listBox_ == nullptr;
  proc.step([&] {
    fieldList_.clearFieldRows();
    fieldListCounter_ = 0;
  });
  proc.step([&] {
    if (!bypassListBox && clearListbox) listBox_->Clear();
  });
  CatalogueBuilder build(*this, proc, listBox_, bypassListBox);
  if (mergeFieldListUse_ == fieldListUseMapping) build.line("Not Assigned");
  proc.step([&] {
    // Always the firm's province, never the client's.
    build.useLabels(workOutLabels(merge::locale().getProvinceCode()));
  });

  for (const Section& section : kSections) {
    if (proc.leaving()) break;
    if (!isIn(section.listTypes, listType_)) continue;
    if (section.content == Content::CompanyOfContact && companyID_ < 0) continue;
    if (isIn(section.blankLineFor, listType_)) build.header("");
    if (section.header != nullptr) build.header(section.header);
    switch (section.content) {
      case Content::Appointment:
        proc.step([&] { createAppointmentInfoFieldListStructure(bypassListBox); });
        break;
      case Content::Task:
        proc.step([&] { createTaskInfoFieldListStructure(bypassListBox); });
        break;
      case Content::TimeEntry:
        proc.step([&] { createDocketInfoFieldListStructure(bypassListBox); });
        break;
      case Content::Company:
      case Content::CompanyOfContact:
        proc.step([&] { createCompanyInfoFieldListStructure(bypassListBox); });
        break;
      case Content::HeaderOnly:
        break;
      case Content::ContactNames:
        build.rows("ContactInfo", kContactNameRows);
        break;
      case Content::Accounting:
        build.rows("ClientInfo", kAccountingRows);
        build.customBlock("ClientInfo", kClientCustomBlock);
        break;
      case Content::Software:
        build.rows("SoftwareInfo", kSoftwareRows);
        break;
      case Content::MoreContact:
        build.rows("ContactInfo", kMoreContactRows);
        build.customBlock("ContactInfo", kContactCustomBlock);
        build.rows("contactNotes", kContactNotesRow);
        break;
    }
  }
  build.refreshList();
  // The firm's rows always join the table; ListBox2 stays as it is.
  proc.step([&] {
    bool bypassFirmList = true;
    bool clearFirmList = false;
    createAccountantFieldListStructure(bypassFirmList, clearFirmList);
  });
}

}  // namespace qb

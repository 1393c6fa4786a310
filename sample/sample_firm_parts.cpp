#include "sample/sample_firm_parts.h"

#include <cstdio>
#include <vector>

namespace qb::sample {
namespace {

struct Employee {
  const char* first;
  const char* last;
  const char* userName;
  const char* title;
  const char* extension;
  bool inherit;  // takes the firm's address and phones
};

const Employee kEmployees[kEmployeeCount] = {
    {"Marie", "Tremblay", "mtremblay", "Managing Partner", "101", false},
    {"Daniel", "Okafor", "dokafor", "Senior Accountant", "104", false},
    {"Sophie", "Gagnon", "sgagnon", "Tax Specialist", "107", true},
    {"Raj", "Patel", "rpatel", "Staff Accountant", "110", true},
    {"Émilie", "Bergeron", "ebergeron", "Office Administrator", "100", false},
};

const char* kFirmName = "Rideau Valley Accounting LLP";
const char* kFirmAddress = "200 Elgin Street, Suite 700";
const char* kFirmPhone = "(613) 555-0100";
const char* kFirmFax = "(613) 555-0199";

// The column layout text of the document list for user 1: details view with
// the eight columns, the path column wider than the default.
std::string columnLayoutXml() {
  struct Column {
    const char* text;
    int width;
    int alignment;
  };
  const std::vector<Column> columns = {
      {"Name", 2600, 0},
      {"Size", 1000, 1},
      {"Date Modified", 2000, 0},
      {"Path", 5200, 0},
      {"Host Computer Name", 1400, 0},
      {"Date Created", 2000, 0},
      {"Date Last Accessed", 2000, 0},
      {"File Added By", 1200, 0},
  };
  std::string xml = "<Columns>";
  int left = 0;
  for (size_t i = 0; i < columns.size(); ++i) {
    std::string index = std::to_string(i + 1);
    xml += "<column><Alignment>" + std::to_string(columns[i].alignment) + "</Alignment><Index>" +
           index + "</Index><Key></Key><Left>" + std::to_string(left) + "</Left><Position>" +
           index + "</Position><SubItemIndex>" + std::to_string(i) +
           "</SubItemIndex><Tag></Tag><Text>" + columns[i].text + "</Text><Width>" +
           std::to_string(columns[i].width) + "</Width></column>";
    left += columns[i].width;
  }
  return xml + "</Columns>";
}

}  // namespace

std::string isoDate(int32_t year, int32_t month, int32_t day) {
  char text[16];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
  return text;
}

std::string isoDateTime(int32_t year, int32_t month, int32_t day, int32_t hour, int32_t minute) {
  char text[24];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:00", year, month, day, hour, minute);
  return text;
}

void writeFirm(SampleWriter& out) {
  // The firm's particulars stand both in its Companies row and in
  // AccountantFirmInfo.
  const std::vector<Field> particulars = {
      {"CompanyID", kFirmCompanyID},
      {"CompanyName", kFirmName},
      {"CorporateName", kFirmName},
      {"CompanyType", 3},
      {"IndustryType", "Accounting"},
      {"Address", kFirmAddress},
      {"City", "Ottawa"},
      {"Province", "ON"},
      {"PostalCode", "K2P 1L5"},
      {"Country", "Canada"},
      {"OfficeNumber", kFirmPhone},
      {"FaxNumber", kFirmFax},
      {"Email", "office@rideauvalleyaccounting.example"},
      {"WebSite", "www.rideauvalleyaccounting.example"},
  };
  std::vector<Field> company = particulars;
  company.insert(company.end(),
                 {{"CategoryNum", kCategoryAddressBook},
                  {"ClientID", "FIRM"},
                  {"DefaultContactName", "Marie Tremblay"},
                  {"DefaultContactPhoneNumber", "(613) 555-0100 x101"},
                  {"DefaultContactFaxNumber", kFirmFax},
                  {"DefaultContactEmail", "mtremblay@rideauvalleyaccounting.example"}});
  out.insert("Companies", company);
  out.insert("CompaniesNotes", {{"CompanyNum", kFirmCompanyID},
                                {"BusinessNotes", "Our own firm.\r\nOffice hours 8:30 to 5:00."}});
  std::vector<Field> firm = particulars;
  firm.insert(firm.end(), {{"Custom1", "CPA Ontario Firm #4471"},
                           {"Custom2", "GST/HST 81234 5678 RT0001"},
                           {"Custom3", "Founded 1998"},
                           {"Custom4", "Parking at the rear, Lisgar Street entrance"},
                           {"Custom5", "Member, Ottawa Board of Trade"}});
  out.insert("AccountantFirmInfo", firm);

  for (int32_t n = 0; n < kEmployeeCount; ++n) {
    const Employee& e = kEmployees[n];
    int32_t id = n + 1;
    std::string display = std::string(e.first) + " " + e.last;
    std::string email = std::string(e.userName) + "@rideauvalleyaccounting.example";
    std::string phone = std::string(kFirmPhone) + " x" + e.extension;
    const char* address = e.inherit ? "" : kFirmAddress;
    // The names and business particulars an employee has in both tables.
    const std::vector<Field> names = {{"ContactID", id},
                                      {"FirstName", e.first},
                                      {"LastName", e.last},
                                      {"DisplayName", display},
                                      {"InheritCompanyInfo", e.inherit ? 1 : 0}};
    const std::vector<Field> business = {{"BusinessName", kFirmName},
                                         {"BusinessJobTitle", e.title},
                                         {"BusinessPhone_Main", phone},
                                         {"BusinessPhone_Fax", kFirmFax},
                                         {"BusinessEmail", email},
                                         {"BusinessAddress", address},
                                         {"BusinessCity", e.inherit ? "" : "Ottawa"},
                                         {"BusinessProvince", e.inherit ? "" : "ON"},
                                         {"BusinessPostalCode", e.inherit ? "" : "K2P 1L5"},
                                         {"BusinessCountry", "Canada"}};
    std::vector<Field> contact = names;
    contact.insert(contact.end(), {{"ContactPersonalTaxDisplayType", 1}});
    contact.insert(contact.end(), business.begin(), business.end());
    out.insert("Contacts", contact);
    std::vector<Field> employee = names;
    employee.insert(employee.end(), business.begin(), business.end());
    employee.insert(
        employee.end(),
        {{"UserName", e.userName},
         {"EmployeeType", n == 4 ? "Part-Time" : "Full-Time"},
         {"BusinessDepartment", n < 4 ? "Assurance and Tax" : "Administration"},
         {"BusinessOffice", std::string("Office ") + e.extension},
         {"Custom1", n == 0 ? "Signing authority" : ""},
         {"Notes", n == 0 ? "Partner in charge of corporate files.\r\nAway in August." : ""}});
    out.insert("AccountantEmployeeInfo", employee);
    out.insert(
        "ContactLinks",
        {{"ContactIDNum", id}, {"CompanyNum", kFirmCompanyID}, {"DefaultContact", n == 0 ? 1 : 0}});
  }
}

void writeFirmSettings(SampleWriter& out) {
  struct Category {
    int32_t id;
    int32_t parent;
    const char* name;
    const char* special;
  };
  const Category categories[] = {
      {kCategoryAddressBook, -1, "Address Book", "Main"},  // the root
      {kCategoryClients, kCategoryAddressBook, "Clients", nullptr},
      {kCategoryCorporateClients, kCategoryClients, "Corporate Clients", nullptr},
      {kCategoryPersonalTaxClients, kCategoryClients, "Personal Tax Clients", nullptr},
      {kCategorySuppliers, kCategoryAddressBook, "Suppliers", nullptr},
      {6, kCategoryAddressBook, "Professional Contacts", nullptr},
      {kCategoryBankers, 6, "Bankers", nullptr},
      {kCategoryLawyers, 6, "Lawyers", nullptr},
  };
  for (const Category& c : categories) {
    out.insert("Categories",
               {{"CategoryID", c.id},
                c.parent >= 0 ? Field("CategoryNum", c.parent) : Field("CategoryNum", nullptr),
                {"CategoryName", c.name},
                c.special != nullptr ? Field("CategorySpecialCode", c.special)
                                     : Field("CategorySpecialCode", nullptr)});
  }

  // Labels keep their colon; "Custom 3:" and "Custom 5:" are left as the
  // firm found them.
  out.insert("CustomAddressFields", {{"ContactLabel1", "Birthday Card:"},
                                     {"ContactLabel2", "Referred By:"},
                                     {"ContactLabel3", "Custom 3:"},
                                     {"ContactLabel4", "Preferred Language:"},
                                     {"ContactLabel5", "Custom 5:"},
                                     {"CompanyLabel1", "Fiscal Year End:"},
                                     {"CompanyLabel2", "Bank:"},
                                     {"CompanyLabel3", "Custom 3:"},
                                     {"CompanyLabel4", "Office Hours:"},
                                     {"CompanyLabel5", "Custom 5:"}});
  out.insert("CustomFields", {{"CustomName1", "Engagement Letter Signed:"},
                              {"CustomName2", "Billing Partner:"},
                              {"CustomName3", "Custom 3"},
                              {"CustomName4", "Fee Arrangement:"},
                              {"CustomName5", "Custom 5"},
                              {"ApptCustomName1", "Meeting Room:"},
                              {"ApptCustomName2", "Bring:"},
                              {"ApptCustomName3", "Custom 3"},
                              {"ApptCustomName4", "Custom 4"},
                              {"ApptCustomName5", "Custom 5"},
                              {"RemittanceLabel1", "Client Contact:"},
                              {"RemittanceLabel2", "Account Number:"},
                              {"RemittanceLabel3", "Filing Method:"},
                              {"RemittanceLabel4", "Custom 4"},
                              {"RemittanceLabel5", "Custom 5"},
                              {"TaskCustomName1", "Reviewer:"},
                              {"TaskCustomName2", "Custom 2"},
                              {"TaskCustomName3", "Custom 3"},
                              {"TaskCustomName4", "Custom 4"},
                              {"TaskCustomName5", "Custom 5"},
                              {"DocketCustomName1", "Work Code:"},
                              {"DocketCustomName2", "Custom 2"},
                              {"DocketCustomName3", "Custom 3"},
                              {"DocketCustomName4", "Custom 4"},
                              {"DocketCustomName5", "Custom 5"},
                              {"RemittanceCustomType1", 3},
                              {"RemittanceCustomType2", 2},
                              {"RemittanceCustomType3", 4},
                              {"RemittanceCustomType4", 0},
                              {"RemittanceCustomType5", 0},
                              {"PersonalTaxTaskCustomType1", 3},
                              {"PersonalTaxTaskCustomType2", 0},
                              {"PersonalTaxTaskCustomType3", 0},
                              {"PersonalTaxTaskCustomType4", 0},
                              {"PersonalTaxTaskCustomType5", 0},
                              {"ProjectCustomType1", 2},
                              {"ProjectCustomType2", 4},
                              {"ProjectCustomType3", 3},
                              {"ProjectCustomType4", 0},
                              {"ProjectCustomType5", 0}});

  out.insert("UserGeneralSettings", {{"UserIDNum", 1},
                                     {"DocQuillboxColumnWidthsXML", columnLayoutXml()},
                                     {"DocQuillboxListViewType", 4},
                                     {"DocQuillboxViewSort", 2},
                                     {"DocQuillboxArrangeIcons", 2},
                                     {"BusinessDocQuillboxSplitter", 30},
                                     {"PersonalDocQuillboxSplitter", 35}});
  out.insert("UserCalendarSettings",
             {{"UserIDNum", 1},
              {"ApptTemplate",
               "«Appointment Name» with «Contact Display Name»\r\n"
               "«Appointment Start Time» to «Appointment End Time»"},
              {"ApptTitleBarText", "«Appointment Name» - «Company Name»"},
              {"DocketTemplate", "«Time Entry Name» for «Company Name» («Total Time (Final)»)"},
              {"DocketTitleBarText", "Time Entry - «Company Name»"},
              {"TaskTemplate", "«Task Name» due «(Task Due Date, mmmm d, yyyy)»"},
              {"TaskTitleBarText", "«Task Name» - «Company Name»"}});
  // "0" counts as no template: user 2 sees the built-in ones.
  out.insert(
      "UserCalendarSettings",
      {{"UserIDNum", 2}, {"ApptTemplate", "0"}, {"DocketTemplate", "0"}, {"TaskTemplate", "0"}});
}

void writeClientData(SampleWriter& out, const ClientDataValues& v) {
  int32_t id = v.clientDataID;
  int32_t s = v.seed;
  std::string bn = std::to_string(812340000 + s * 7919 % 99991);
  out.insert("ClientData", {{"ClientDataID", id},
                            {"CompanyIDNum", v.companyID},
                            {"ShowThisClient", v.showThisClient ? 1 : 0},
                            {"ActiveStatus", v.activeStatus},
                            {"ClientSince", isoDate(2005 + s % 19, 1 + s % 12, 1 + s % 28)}});
  out.insert("AccountingServices",
             {{"AccountingServiceID", id},
              {"BusinessNumber", bn},
              {"RC59Permission", s % 3},
              {"RC59Status", s % 4},
              {"GSTNumber", bn + " RT0001"},
              {"GSTFilingMethod", 1 + s % 3},
              {"PSTNumber", std::to_string(10000000 + s * 37)},
              {"PayrollNumber", bn + " RP0001"},
              {"PayrollRegisteredAs", s % 2 == 0 ? "Operating company" : "Holding company"},
              {"YearEndDate", isoDate(2025, s % 3 == 0 ? 12 : 3 + s % 9, s % 3 == 0 ? 31 : 30)},
              {"FinancialStatements", 1 + s % 5},
              {"BookkeepingFrequency", s % 2 == 0 ? "Monthly" : "Quarterly"}});
  out.insert("ClientOptions", {{"ClientOptionID", id},
                               {"ClientCustom1", s % 2 == 0 ? "Yes" : "No"},
                               {"ClientCustom2", s % 3 == 0 ? "Marie Tremblay" : "Daniel Okafor"},
                               {"ClientCustom3", nullptr},
                               {"ClientCustom4", s % 4 == 0 ? "Fixed fee" : "Hourly"},
                               {"ClientCustom5", nullptr}});
  out.insert("CorpTaxInfo", {{"CorpTaxInfoID", id},
                             {"FederalCorpNumber", bn + " RC0001"},
                             {"ONCorpNumber", std::to_string(1800000 + s * 113)},
                             {"MCBS", std::to_string(94800000 + s * 17)},
                             {"IncorporationDate", isoDate(1990 + s % 30, 1 + s % 12, 1 + s % 27)},
                             {"CorporationType", s % 4 == 0 ? 1 : 0},
                             {"CorporationLevel", s % 3 == 0 ? 2 : 1}});
  out.insert("LawInfo",
             {{"LawInfoID", id},
              {"NameRenewalDate", isoDate(2026 + s % 4, 1 + s % 12, 15)},
              {"LawSocietyMemberNumber", s % 5 == 0 ? "LSO-" + std::to_string(40000 + s) : ""}});
  out.insert("OtherInfo",
             {{"OtherInfoID", id}, {"CharitableNum", s % 7 == 0 ? bn + " RR0001" : ""}});
  out.insert("WSIB_EHTInfo", {{"WSIB_EHTInfoID", id},
                              {"WSIBNumber", std::to_string(3829000 + s)},
                              {"WSIBFirmNumber", std::to_string(19283000 + s * 3)},
                              {"WSIBPremiumRate", 1.5 + (s % 20) / 10.0},
                              {"Coverage", 50000.0 + (s % 5) * 25000.0},
                              {"EHTNumber", std::to_string(3948000 + s * 11)},
                              {"EHTPremiumRate", 0.98 + (s % 10) / 10.0}});
  out.insert("ClientUSInfo",
             {{"ClientUSInfoID", id},
              {"EIN", std::to_string(45 + s % 50) + "-" + std::to_string(6547000 + s)},
              {"SellersPermitNum", std::to_string(54000 + s)},
              {"USYearEndDate", isoDate(2025, 12, 31)},
              {"SoSFileNum", std::to_string(548000 + s)},
              {"USIncorporationDate", isoDate(2005 + s % 15, 6, 1)},
              {"PropertyTaxNum", std::to_string(541000 + s)},
              {"Form637RegNum", std::to_string(8457000 + s)},
              {"TCN", std::to_string(15000 + s)},
              {"TerminalName", ""},
              {"TerminalLocation", ""},
              {"AlcoholNum", ""}});
}

}  // namespace qb::sample

#include "sample/sample_clients.h"

#include <stdexcept>

#include "sample/sample_firm_parts.h"

namespace qb::sample {
namespace {

// Company 11 has links and no default contact; company 16 has no links.
constexpr int32_t kCompanyWithoutDefault = 11;
constexpr int32_t kHiddenCompany = 14;
constexpr int32_t kInactiveCompany = 9;

const std::vector<SampleCompany> kCompanies = {
    {2, "Maple Leaf Bakery Ltd.", "Maple Leaf Bakery Limited", "MLB01", 1, "Food Services",
     "1425 Bank Street", "Ottawa", "ON", "K1H 7Z1", "Canada", "(613) 555-0142",
     "mapleleafbakery.example", -1},
    {3, "Côté Plomberie Inc.", "Plomberie Côté Inc.", "COT01", 1, "Construction",
     "87 rue Principale", "Gatineau", "QC", "J9H 3L2", "Canada", "(819) 555-0187",
     "coteplomberie.example", -1},
    {4, "Lefèbvre Consulting Group", "Groupe Conseil Lefèbvre Inc.", "LEF01", 1, "Consulting",
     "1250 boul. René-Lévesque Ouest\r\nBureau 2200", "Montréal", "QC", "H3B 4W8", "Canada",
     "(514) 555-0121", "lefebvreconsulting.example", -1},
    {5, "Northern Lights Dental", "Northern Lights Dental Professional Corporation", "NLD01", 1,
     "Health Care", "300 March Road, Unit 12", "Kanata", "ON", "K2K 2E2", "Canada",
     "(613) 555-0163", "northernlightsdental.example", -1},
    {6, "Rideau Outfitters Inc.", "Rideau Outfitters Incorporated", "RID01", 1, "Retail",
     "480 Sussex Drive", "Ottawa", "ON", "K1N 6Z4", "Canada", "(613) 555-0178",
     "rideauoutfitters.example", -1},
    {7, "Byward Market Books", "Chloé Bouchard o/a Byward Market Books", "BYW01", 2, "Retail",
     "55 York Street", "Ottawa", "ON", "K1N 5T1", "Canada", "(613) 555-0135", "bywardbooks.example",
     -1},
    {8, "Okanagan Orchard Holdings Ltd.", "Okanagan Orchard Holdings Ltd.", "OKA01", 1,
     "Agriculture", "2210 Lakeshore Road", "Kelowna", "BC", "V1W 3K8", "Canada", "(250) 555-0119",
     "okanaganorchard.example", -1},
    {9, "Prairie Sky Trucking Ltd.", "Prairie Sky Trucking Ltd.", "PRA01", 1, "Transportation",
     "1100 Ross Avenue East", "Regina", "SK", "S4N 0R9", "Canada", "(306) 555-0144",
     "prairiesky.example", -1},
    {10, "Bluenose Marine Services Ltd.", "Bluenose Marine Services Limited", "BLU01", 1, "Marine",
     "1751 Lower Water Street", "Halifax", "NS", "B3J 1S5", "Canada", "(902) 555-0158",
     "bluenosemarine.example", -1},
    {11, "Glebe Fitness Studio Inc.", "Glebe Fitness Studio Inc.", "GLE01", 1, "Fitness",
     "790 Bank Street, 2nd Floor", "Ottawa", "ON", "K1S 3V5", "Canada", "(613) 555-0126",
     "glebefitness.example", -1},
    {12, "Maple Leaf Bakery - Orléans", "Maple Leaf Bakery Limited", "MLB02", 1, "Food Services",
     "3065 St. Joseph Boulevard", "Orléans", "ON", "K1E 3W6", "Canada", "(613) 555-0149",
     "mapleleafbakery.example", 2},
    {13, "Lefèbvre Consulting - Toronto", "Groupe Conseil Lefèbvre Inc.", "LEF02", 1, "Consulting",
     "181 Bay Street, Suite 1800", "Toronto", "ON", "M5J 2T3", "Canada", "(416) 555-0133",
     "lefebvreconsulting.example", 4},
    {14, "Ottawa Valley Food Bank", "Ottawa Valley Community Food Bank", "OVF01", 4, "Non Profit",
     "22 Raglan Street South", "Renfrew", "ON", "K7V 1P9", "Canada", "(613) 555-0171",
     "ovfoodbank.example", -1},
    {15, "Château Gris Catering Inc.", "Traiteur Château Gris Inc.", "CHA01", 1, "Food Services",
     "160 boul. de l'Hôpital", "Gatineau", "QC", "J8T 8J1", "Canada", "(819) 555-0112",
     "chateaugris.example", -1},
    {16, "Sunrise Landscaping", "Sunrise Landscaping Partnership", "SUN01", 3, "Landscaping",
     "45 Colonnade Road", "Nepean", "ON", "K2E 7J6", "Canada", "(613) 555-0190",
     "sunriselandscaping.example", -1},
    {17, "Great Lakes Freight Corp.", "Great Lakes Freight Corporation", "GLF01", 1,
     "Transportation", "300 Pearl Street", "Buffalo", "NY", "14202", "USA", "(716) 555-0117",
     "greatlakesfreight.example", -1},
};

const std::vector<SampleContact> kContacts = {
    {6, "Mr.", "Pierre", "Côté", 3, "President", false, "Hélène", "Côté", "Male", "1968-04-12"},
    {7, "Mrs.", "Hélène", "Côté", 3, "Office Manager", false, "", "", "Female", "1970-09-03"},
    {8, "Mr.", "François", "Lefèbvre", 4, "Principal", false, "Nathalie", "Roy", "Male",
     "1975-11-21"},
    {9, "Ms.", "Nathalie", "Roy", 4, "Vice-President", false, "", "", "Female", "1977-02-14"},
    {10, "Mrs.", "Margaret", "Whitfield", 2, "Owner", false, "", "", "Female", "1961-06-30"},
    {11, "Mr.", "Tom", "Whitfield", 2, "Head Baker", false, "", "", "Male", "1989-01-08"},
    {12, "Dr.", "Anika", "Sharma", 5, "Dentist", false, "", "", "Female", "1980-03-19"},
    {13, "Mr.", "Kevin", "O'Neill", 5, "Office Manager", true, "", "", "Male", "1984-10-02"},
    {14, "Ms.", "Geneviève", "Lavoie", 6, "President", false, "", "", "Female", "1972-12-11"},
    {15, "Mr.", "Samuel", "Lavoie", 6, "Store Manager", false, "", "", "Male", "1976-05-27"},
    {16, "Ms.", "Chloé", "Bouchard", 7, "Owner", false, "", "", "Female", "1983-08-16"},
    {17, "Mr.", "Harjit", "Dhillon", 8, "President", false, "", "", "Male", "1966-07-04"},
    {18, "Ms.", "Wei", "Chen", 8, "Bookkeeper", true, "", "", "Female", "1991-11-29"},
    {19, "Mr.", "Dale", "Kowalchuk", 9, "Owner", false, "", "", "Male", "1958-02-22"},
    {20, "Ms.", "Brenda", "Sawatzky", 9, "Dispatcher", false, "", "", "Female", "1979-09-09"},
    {21, "Mr.", "Angus", "MacLeod", 10, "President", false, "", "", "Male", "1963-04-01"},
    {22, "Ms.", "Fiona", "MacLeod", 10, "Controller", false, "", "", "Female", "1990-12-24"},
    {23, "Ms.", "Jessica", "Tran", 11, "Co-owner", false, "", "", "Female", "1988-06-06"},
    {24, "Mr.", "Marcus", "Bell", 11, "Co-owner", false, "", "", "Male", "1986-03-13"},
    {25, "Mr.", "Raymond", "Giroux", 14, "Executive Director", false, "", "", "Male", "1955-10-10"},
    {26, "Ms.", "Élise", "Ng", 14, "Volunteer Coordinator", true, "", "", "Female", "1994-01-17"},
    {27, "Mr.", "Jean-Philippe", "Dubé", 15, "Chef and Owner", false, "", "", "Male", "1978-08-08"},
    {28, "Mrs.", "Maude", "Dubé", 15, "Events Manager", false, "", "", "Female", "1981-05-05"},
    {29, "Mr.", "Robert", "Hayes", 17, "President", false, "", "", "Male", "1960-11-11"},
    {30, "Ms.", "Linda", "Hayes", 17, "Treasurer", true, "", "", "Female", "1962-02-02"},
    {31, "Ms.", "Olivia", "Martin", -1, "", false, "", "", "Female", "1985-07-21"},
    {32, "Mr.", "Ahmed", "Haddad", -1, "First Capital Bank", false, "", "", "Male", "1974-03-30"},
    {33, "Me", "Caroline", "Beaulieu", -1, "Beaulieu Avocats", false, "", "", "Female",
     "1979-12-01"},
    {34, "Mr.", "Noah", "Fitzgerald", -1, "", false, "", "", "Male", "1992-09-14"},
    {35, "Ms.", "Zoë", "Papadopoulos", -1, "Capital Office Supplies", false, "", "", "Female",
     "1987-04-25"},
};

// Links of contacts to companies; the first contact of each list is the
// company's default contact, except at kCompanyWithoutDefault.
const std::vector<std::pair<int32_t, std::vector<int32_t>>> kCompanyLinks = {
    {2, {10, 11}}, {3, {6, 7}},   {4, {8, 9}},    {5, {12, 13}},  {6, {14, 15}},
    {7, {16}},     {8, {17, 18}}, {9, {19, 20}},  {10, {21, 22}}, {11, {23, 24}},
    {12, {10}},    {13, {8, 9}},  {14, {25, 26}}, {15, {27, 28}}, {17, {29, 30}},
};

struct Relationship {
  int32_t contact;  // ContactIDNum
  int32_t related;  // ContactNum
  const char* relationship;
};

const Relationship kRelationships[] = {
    {7, 6, "Spouse"},           {6, 7, "Spouse"},          {11, 10, "Son"},
    {10, 11, "Mother"},         {15, 14, "Brother"},       {22, 21, "Daughter"},
    {9, 8, "Business Partner"}, {28, 27, "Not Specified"},
};

const std::pair<int32_t, int32_t> kContactCategories[] = {
    {6, kCategoryPersonalTaxClients},
    {8, kCategoryPersonalTaxClients},
    {31, kCategoryPersonalTaxClients},
    {34, kCategoryPersonalTaxClients},
    {32, kCategoryBankers},
    {33, kCategoryLawyers},
    {35, kCategorySuppliers},
};

std::string lower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

// The letters of a name as an e-mail address takes them: accents dropped,
// blanks, apostrophes and hyphens left out, lower case.
std::string mailName(const std::string& name) {
  static const std::pair<const char*, char> accents[] = {
      {"é", 'e'}, {"è", 'e'}, {"ê", 'e'}, {"ë", 'e'}, {"É", 'e'}, {"à", 'a'}, {"â", 'a'},
      {"ç", 'c'}, {"î", 'i'}, {"ï", 'i'}, {"ô", 'o'}, {"ö", 'o'}, {"û", 'u'}, {"ü", 'u'}};
  std::string out;
  for (size_t i = 0; i < name.size();) {
    bool folded = false;
    for (const auto& [accented, plain] : accents) {
      if (name.compare(i, std::char_traits<char>::length(accented), accented) == 0) {
        out += plain;
        i += std::char_traits<char>::length(accented);
        folded = true;
        break;
      }
    }
    if (folded) continue;
    char c = name[i++];
    if (static_cast<unsigned char>(c) < 0x80 && c != '\'' && c != '-' && c != ' ') out += c;
  }
  return lower(out);
}

std::string emailOf(const SampleContact& c) {
  std::string domain = c.company >= 0 ? sampleCompany(c.company).domain : "mail.example";
  return mailName(c.first) + "." + mailName(c.last) + "@" + domain;
}

std::string faxOf(const SampleCompany& c) {
  std::string phone = c.phone;  // "(613) 555-0142" gives "(613) 555-9142"
  return phone.substr(0, 10) + "9" + phone.substr(11);
}

// A contact's own business fax: its company's, unless it inherits the
// company's details or has no company.
std::string businessFaxOf(const SampleContact& c) {
  return c.company >= 0 && !c.inherit ? faxOf(sampleCompany(c.company)) : "";
}

std::string phoneOf(const SampleContact& c) {
  if (c.company < 0) return "(613) 555-0" + std::to_string(200 + c.id);
  return std::string(sampleCompany(c.company).phone) + " x" + std::to_string(200 + c.id);
}

Field text(const char* column, const char* value) {
  return *value != '\0' ? Field(column, value) : Field(column, nullptr);
}

void writeCompanies(SampleWriter& out, FirmSummary& summary) {
  for (const SampleCompany& c : kCompanies) {
    // Branches stand under their main company, not in a category.
    bool branch = c.mainCompany >= 0;
    int32_t category = branch                                       ? -1
                       : (c.companyType == 2 || c.companyType == 4) ? kCategoryClients
                                                                    : kCategoryCorporateClients;
    std::string defaultName, defaultPhone, defaultFax, defaultEmail;
    for (const auto& [company, contacts] : kCompanyLinks) {
      if (company != c.id || company == kCompanyWithoutDefault) continue;
      const SampleContact& person = sampleContact(contacts.front());
      defaultName = sampleDisplayName(person);
      defaultPhone = person.inherit ? "" : phoneOf(person);
      // The copy is the default contact's own fax: a branch's default works
      // at the main company and has its fax.
      defaultFax = businessFaxOf(person);
      defaultEmail = emailOf(person);
    }
    out.insert(
        "Companies",
        {{"CompanyID", c.id},
         branch ? Field("CompanyNum", c.mainCompany) : Field("CompanyNum", nullptr),
         category >= 0 ? Field("CategoryNum", category) : Field("CategoryNum", nullptr),
         {"CompanyName", c.name},
         {"CorporateName", c.corporateName},
         {"ClientID", c.clientID},
         {"CompanyType", c.companyType},
         {"IndustryType", c.industry},
         {"Address", c.address},
         {"City", c.city},
         {"Province", c.province},
         {"PostalCode", c.postalCode},
         {"Country", c.country},
         {"OfficeNumber", c.phone},
         {"FaxNumber", faxOf(c)},
         {"Email", std::string("info@") + c.domain},
         {"WebSite", std::string("www.") + c.domain},
         {"PartnerName", c.id % 2 == 0 ? "Marie Tremblay" : "Daniel Okafor"},
         {"AccountantName", c.id % 3 == 0 ? "Sophie Gagnon" : "Raj Patel"},
         {"DefaultContactName", defaultName},
         {"DefaultContactPhoneNumber", defaultPhone},
         {"DefaultContactFaxNumber", defaultFax},
         {"DefaultContactEmail", defaultEmail},
         {"Custom1", c.id % 3 == 0 ? "December 31" : "March 31"},
         {"Custom2", c.id % 2 == 0 ? "Banque Laurentide, branch 0042" : "Caisse du Quartier"},
         {"Custom4", "Mon-Fri 9:00-5:00"}});
    out.insert(
        "CompaniesNotes",
        {{"CompanyNum", c.id},
         {"BusinessNotes", std::string(c.name) + " - client since the firm's early years.\r\n"
                                                 "Send the year-end package by courier."},
         {"Notes",
          "Year-end checklist sent in January.\r\nBooks kept in the cloud; "
          "read-only access granted to the firm."}});
    ++summary.companies;
  }
}

void writeContacts(SampleWriter& out, FirmSummary& summary) {
  for (const SampleContact& c : kContacts) {
    bool couple = *c.spouseFirst != '\0';
    const SampleCompany* company = c.company >= 0 ? &sampleCompany(c.company) : nullptr;
    // A person who inherits shows the company's address: keep none of their own.
    bool ownAddress = company != nullptr && !c.inherit;
    std::string business = company != nullptr ? company->name : c.title;
    std::string title = company != nullptr ? c.title : "";
    out.insert(
        "Contacts",
        {{"ContactID", c.id},
         {"ClientID", company == nullptr ? "P" + std::to_string(1000 + c.id) : ""},
         {"NamePrefix", c.prefix},
         {"FirstName", c.first},
         {"LastName", c.last},
         {"DisplayName", sampleDisplayName(c)},
         {"ContactPersonalTaxDisplayType", couple ? 2 : 1},
         {"InheritCompanyInfo", c.inherit ? 1 : 0},
         {"SocialInsuranceNumber",
          "9" + std::to_string(10 + c.id) + " 555 0" + std::to_string(10 + c.id)},
         {"EmployeeType", company != nullptr ? "Full-Time" : ""},
         {"PercentageOwnership", title == "Owner" || title == "President" ? "100%" : ""},
         {"BusinessName", business},
         {"BusinessJobTitle", title},
         {"BusinessPhone_Main", c.inherit ? "" : phoneOf(c)},
         {"BusinessPhone_Cell", c.id % 3 == 0 ? "(613) 555-1" + std::to_string(100 + c.id) : ""},
         {"BusinessPhone_Fax", businessFaxOf(c)},
         {"BusinessEmail", emailOf(c)},
         ownAddress ? Field("BusinessAddress", company->address)
                    : Field("BusinessAddress", nullptr),
         ownAddress ? Field("BusinessCity", company->city) : Field("BusinessCity", nullptr),
         ownAddress ? Field("BusinessProvince", company->province)
                    : Field("BusinessProvince", nullptr),
         ownAddress ? Field("BusinessPostalCode", company->postalCode)
                    : Field("BusinessPostalCode", nullptr),
         ownAddress ? Field("BusinessCountry", company->country)
                    : Field("BusinessCountry", nullptr),
         {"HomePhone_Main", "(613) 555-2" + std::to_string(100 + c.id)},
         {"HomeAddress", std::to_string(10 + c.id * 3) + " Maple Crescent"},
         {"HomeCity", company != nullptr ? company->city : "Ottawa"},
         {"HomeProvince", company != nullptr ? company->province : "ON"},
         {"HomePostalCode", company != nullptr ? company->postalCode : "K1S 2L4"},
         {"HomeCountry", company != nullptr ? company->country : "Canada"},
         {"Gender", c.gender},
         {"Birthday", c.birthday},
         {"SpokenLanguage",
          *c.first == 'P' || *c.first == 'H' || *c.first == 'F' ? "French" : "English"},
         {"MaritialStatus", couple ? "Married" : "Single"},
         text("SpouseFirstName", c.spouseFirst),
         text("SpouseLastName", c.spouseLast),
         couple ? Field("SpouseName", std::string(c.spouseFirst) + " " + c.spouseLast)
                : Field("SpouseName", nullptr),
         // The Côtés have a second address: the cottage.
         c.id == 6 ? Field("AltAddressName", "Chalet") : Field("AltAddressName", nullptr),
         c.id == 6 ? Field("AltAddress", "1200 chemin du Lac-Tremblant")
                   : Field("AltAddress", nullptr),
         c.id == 6 ? Field("AltCity", "Mont-Tremblant") : Field("AltCity", nullptr),
         c.id == 6 ? Field("AltProvince", "QC") : Field("AltProvince", nullptr),
         c.id == 6 ? Field("AltPostalCode", "J8E 1T4") : Field("AltPostalCode", nullptr),
         {"Custom1", c.id % 2 == 0 ? "Yes" : "No"},
         {"Custom2", c.id % 4 == 0 ? "Caroline Beaulieu" : ""},
         {"Custom4", *c.first == 'P' || *c.first == 'F' ? "Français" : "English"}});
    ++summary.contacts;
  }
  out.insert("ContactsNotes", {{"ContactNum", 6},
                               {"Notes",
                                "Prefers meetings in French.\r\nCottage in Mont-Tremblant "
                                "from June to August.\r\nSpouse signs the returns too."}});
  for (const SampleContact& c : kContacts) {
    if (c.id == 6) continue;
    if (c.id % 5 == 4) continue;  // some contacts have no notes row
    out.insert("ContactsNotes",
               {{"ContactNum", c.id},
                {"Notes", std::string("Met at the ") + (c.id % 2 == 0 ? "spring" : "fall") +
                              " tax clinic.\r\nCall before noon."}});
  }
}

void writeLinks(SampleWriter& out) {
  for (const auto& [company, contacts] : kCompanyLinks) {
    for (size_t n = 0; n < contacts.size(); ++n) {
      bool isDefault = n == 0 && company != kCompanyWithoutDefault;
      out.insert("ContactLinks", {{"ContactIDNum", contacts[n]},
                                  {"CompanyNum", company},
                                  {"DefaultContact", isDefault ? 1 : 0}});
    }
  }
  for (const Relationship& r : kRelationships) {
    out.insert("ContactLinks", {{"ContactIDNum", r.contact},
                                {"ContactNum", r.related},
                                {"DefaultContact", 0},
                                {"FamilyRelationship", r.relationship}});
  }
  for (const auto& [contact, category] : kContactCategories) {
    out.insert("ContactLinks",
               {{"ContactIDNum", contact}, {"CategoryNum", category}, {"DefaultContact", 0}});
  }
}

void writeSoftware(SampleWriter& out) {
  struct Software {
    int32_t company;
    int32_t contact;
    bool isDefault;
    const char* name;
    const char* version;
  };
  const Software rows[] = {
      {2, -1, false, "Ledgerly Desktop 2019", "19.2"},
      {2, -1, true, "Ledgerly Online", "2025.3"},
      {4, -1, true, "BooksPro Enterprise", "12.5"},
      {5, -1, true, "ClinicBooks", "8.1"},
      {8, -1, true, "FarmLedger", "4.0"},
      {-1, 6, true, "TaxSimple Personal", "2025"},
  };
  int32_t n = 0;
  for (const Software& s : rows) {
    ++n;
    out.insert(
        "SoftwareInfo",
        {s.company >= 0 ? Field("CompanyIDNum", s.company) : Field("CompanyIDNum", nullptr),
         s.contact >= 0 ? Field("ContactIDNum", s.contact) : Field("ContactIDNum", nullptr),
         {"DefaultSoftware", s.isDefault ? 1 : 0},
         {"SoftwareName", s.name},
         {"SoftwareSerialNumber", "KQZ" + std::to_string(n) + " 7PLM XR" + std::to_string(n)},
         {"SoftwareVersion", s.version},
         {"SoftwareAccountNumber", "DR " + std::to_string(459680 + n)},
         {"FileSavedAs", "\\\\RVA-SERVER01\\Clients\\Data\\client" + std::to_string(n) + ".dat"},
         {"UserName", "rva" + std::to_string(n)},
         {"Password", "Sample42x"}});
  }
}

}  // namespace

const std::vector<SampleCompany>& sampleCompanies() { return kCompanies; }
const std::vector<SampleContact>& sampleContacts() { return kContacts; }

const SampleCompany& sampleCompany(int32_t id) {
  for (const SampleCompany& c : kCompanies) {
    if (c.id == id) return c;
  }
  throw std::out_of_range("no sample company " + std::to_string(id));
}

const SampleContact& sampleContact(int32_t id) {
  for (const SampleContact& c : kContacts) {
    if (c.id == id) return c;
  }
  throw std::out_of_range("no sample contact " + std::to_string(id));
}

std::string sampleDisplayName(const SampleContact& c) {
  if (*c.spouseFirst == '\0') return std::string(c.first) + " " + c.last;
  if (std::string(c.spouseLast) == c.last) {
    return std::string(c.first) + " & " + c.spouseFirst + " " + c.last;
  }
  return std::string(c.first) + " " + c.last + " & " + c.spouseFirst + " " + c.spouseLast;
}

void writeSampleClients(SampleWriter& out, FirmSummary& summary) {
  writeCompanies(out, summary);
  writeContacts(out, summary);
  writeLinks(out);
  writeSoftware(out);
  int32_t clientDataID = 0;
  for (const SampleCompany& c : kCompanies) {
    ClientDataValues values;
    values.clientDataID = ++clientDataID;
    values.companyID = c.id;
    values.seed = c.id * 3;
    values.showThisClient = c.id != kHiddenCompany;
    values.activeStatus = c.id == kInactiveCompany ? 2 : 1;
    writeClientData(out, values);
  }
}

}  // namespace qb::sample

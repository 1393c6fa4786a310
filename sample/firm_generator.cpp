// Generated firms for benchmarks: any number of client companies, each with
// two contacts, client data, document categories and links to a shared
// folder of real files.

#include <filesystem>
#include <random>
#include <stdexcept>

#include "sample/sample_documents.h"
#include "sample/sample_firm.h"
#include "sample/sample_firm_parts.h"

namespace qb {
namespace {

namespace fs = std::filesystem;
using sample::DocOwner;
using sample::Field;

constexpr int32_t kBulkFileCount = 200;
constexpr int32_t kBulkArchiveLinks = 5000;

const char* const kFirstNames[] = {
    "Hélène",   "François", "Amélie", "Jean-Luc", "Geneviève", "Mathieu", "Chloé", "Olivier",
    "Sarah",    "David",    "Priya",  "Michael",  "Emma",      "Liam",    "Zoë",   "Noah",
    "Isabelle", "Marc",     "Fatima", "Kenji",    "Aisha",     "Connor",  "Léa",   "Gabriel"};
const char* const kLastNames[] = {
    "Côté",   "Lefèbvre", "Tremblay", "Gagnon",  "Roy",      "Bouchard",  "Gauthier", "Morin",
    "Lavoie", "Fortin",   "Smith",    "Brown",   "Wilson",   "MacDonald", "Singh",    "Nguyen",
    "Chen",   "Patel",    "Kowalski", "O'Brien", "Bélanger", "Pelletier", "Haddad",   "Dubé"};
const char* const kNameWords[] = {
    "Maple",  "Rideau",  "Laurentian", "Northern",  "Prairie", "Bluewater", "Cedar",     "Granite",
    "Boréal", "Harbour", "Summit",     "Riverside", "Aurora",  "Château",   "Pinecrest", "Glacier"};
const char* const kTrades[] = {"Bakery",     "Plumbing", "Consulting",  "Dental",
                               "Outfitters", "Books",    "Trucking",    "Marine",
                               "Fitness",    "Catering", "Landscaping", "Electric",
                               "Pharmacy",   "Design",   "Motors",      "Roofing"};
const char* const kSuffixes[] = {"Ltd.", "Inc.", "Corp.", "Group", "& Associates"};
const char* const kCities[][3] = {{"Ottawa", "ON", "K1P 5G4"},    {"Gatineau", "QC", "J8X 3Y9"},
                                  {"Toronto", "ON", "M5H 2N2"},   {"Montréal", "QC", "H2Y 1C6"},
                                  {"Kingston", "ON", "K7L 2Z1"},  {"Halifax", "NS", "B3J 3A5"},
                                  {"Winnipeg", "MB", "R3C 4T3"},  {"Calgary", "AB", "T2P 2M5"},
                                  {"Vancouver", "BC", "V6B 1A1"}, {"Regina", "SK", "S4P 3C8"}};
const char* const kExtensions[] = {".pdf", ".docx", ".xlsx", ".txt", ".csv", ".odt", ".png"};

template <typename T, size_t N>
const T& pick(const T (&list)[N], std::mt19937& rng) {
  return list[rng() % N];
}

fs::path bulkFile(const fs::path& bulk, int32_t n) {
  return bulk / ("Archived Document " + std::to_string(1000 + n) + kExtensions[n % 7]);
}

}  // namespace

FirmSummary generateFirm(const std::string& path, const std::string& filesFolder,
                         int32_t clientCount) {
  if (clientCount < 0) throw std::runtime_error("the number of clients can't be negative");
  FirmSummary summary;
  fs::path root = fs::absolute(filesFolder).lexically_normal();
  fs::path bulk = root / "bulk";
  summary.filesFolder = root.string();

  sample::SampleWriter out(path);
  sample::DocumentShelf shelf(out, summary);
  for (int32_t n = 0; n < kBulkFileCount; ++n) {
    fs::path file = bulkFile(bulk, n);
    shelf.writeFile(file, file.stem().string(),
                    sample::documentLines(file, "Archived client " + std::to_string(n), ""));
  }
  sample::writeFirm(out);
  sample::writeFirmSettings(out);
  summary.contacts += sample::kEmployeeCount;

  std::mt19937 rng(20250101);
  int32_t nextLink = 0;
  int32_t firstMain = -1;
  for (int32_t i = 1; i <= clientCount; ++i) {
    int32_t companyID = sample::kFirmCompanyID + i;
    std::string name = std::string(pick(kNameWords, rng)) + " " + pick(kTrades, rng) + " " +
                       pick(kSuffixes, rng) + " #" + std::to_string(i);
    const auto& city = pick(kCities, rng);
    std::string phone = "(613) 555-" + std::to_string(1000 + i % 9000);
    int32_t contactIDs[2] = {sample::kEmployeeCount + 2 * i - 1, sample::kEmployeeCount + 2 * i};
    std::string contactNames[2];
    for (int32_t k = 0; k < 2; ++k) {
      std::string first = pick(kFirstNames, rng);
      std::string last = pick(kLastNames, rng);
      contactNames[k] = first + " " + last;
      out.insert("Contacts",
                 {{"ContactID", contactIDs[k]},
                  {"FirstName", first},
                  {"LastName", last},
                  {"DisplayName", contactNames[k]},
                  {"ContactPersonalTaxDisplayType", 1},
                  {"InheritCompanyInfo", k},
                  {"BusinessName", name},
                  {"BusinessJobTitle", k == 0 ? "President" : "Controller"},
                  {"BusinessPhone_Main", phone + " x" + std::to_string(10 + k)},
                  {"BusinessEmail", "contact" + std::to_string(contactIDs[k]) + "@client" +
                                        std::to_string(i) + ".example"},
                  {"BusinessAddress", k == 0 ? std::to_string(100 + i) + " Main Street" : ""},
                  {"BusinessCity", k == 0 ? city[0] : ""},
                  {"BusinessProvince", k == 0 ? city[1] : ""},
                  {"BusinessPostalCode", k == 0 ? city[2] : ""},
                  {"BusinessCountry", "Canada"}});
      out.insert("ContactLinks", {{"ContactIDNum", contactIDs[k]},
                                  {"CompanyNum", companyID},
                                  {"DefaultContact", k == 0 ? 1 : 0}});
      ++summary.contacts;
    }
    out.insert("ContactsNotes", {{"ContactNum", contactIDs[0]},
                                 {"Notes", "Generated contact.\r\nCall before noon."}});
    out.insert("Companies",
               {{"CompanyID", companyID},
                {"CategoryNum", sample::kCategoryCorporateClients},
                {"CompanyName", name},
                {"CorporateName", name},
                {"ClientID", "C" + std::to_string(10000 + i)},
                {"CompanyType", 1 + i % 5},
                {"Address", std::to_string(100 + i) + " Main Street"},
                {"City", city[0]},
                {"Province", city[1]},
                {"PostalCode", city[2]},
                {"Country", "Canada"},
                {"OfficeNumber", phone},
                {"DefaultContactName", contactNames[0]},
                {"DefaultContactPhoneNumber", phone + " x10"},
                {"DefaultContactEmail", "contact" + std::to_string(contactIDs[0]) + "@client" +
                                            std::to_string(i) + ".example"}});
    out.insert("CompaniesNotes",
               {{"CompanyNum", companyID},
                {"BusinessNotes", "Generated client " + std::to_string(i) + "."}});
    sample::ClientDataValues values;
    values.clientDataID = i;
    values.companyID = companyID;
    values.seed = i;
    sample::writeClientData(out, values);
    out.insert("Schedule", {{"ScheduleID", i},
                            {"ClientNum", i},
                            {"ScheduleNum", 1},
                            {"TotalNum", 101},
                            {"Subject", "Quarterly GST Payment"},
                            {"DueDate", sample::isoDate(2025, 1 + i % 12, 15)},
                            {"Year", "2025"}});
    out.insert("Tasks", {{"TaskID", i},
                         {"ScheduleIDNum", i},
                         {"Subject", "Prepare the GST return"},
                         {"DateFrom", sample::isoDate(2025, 1 + i % 12, 10)},
                         {"TimeFrom", sample::isoDateTime(2025, 1 + i % 12, 10, 9, 0)},
                         {"TimeTo", sample::isoDateTime(2025, 1 + i % 12, 10, 10, 0)}});
    out.insert("Dockets", {{"DocketID", i},
                           {"CompanyIDNum", companyID},
                           {"ContactIDNum", contactIDs[0]},
                           {"Subject", "Bookkeeping"},
                           {"DateFrom", sample::isoDate(2025, 1 + i % 12, 12)},
                           {"TotalTimeFinal", 0.25 * (1 + i % 8)},
                           {"TotalAmountFinal", 0.25 * (1 + i % 8) * 120.0}});
    ++summary.companies;

    DocOwner owner{companyID, -1};
    fs::path folder = root / sample::clientFolderName(name);
    int32_t main = shelf.addCategory(owner, -1, name, "All documents of " + name, folder.string(),
                                     sample::kMainCategory, 0);
    if (i == 1) firstMain = main;
    shelf.addCategory(owner, main, "Merge Documents", "", (folder / "Merge Documents").string(),
                      sample::kMergeFolderCategory, 1);
    int32_t taxReturns =
        shelf.addCategory(owner, main, "Tax Returns", "", "", sample::kOrdinaryCategory, 2);
    int32_t holders[3] = {
        shelf.addCategory(owner, taxReturns, "2025", "", "", sample::kOrdinaryCategory, 0),
        shelf.addCategory(owner, main, "Correspondence", "", "", sample::kOrdinaryCategory, 3),
        shelf.addCategory(owner, main, "Financial Statements", "", "", sample::kOrdinaryCategory,
                          4),
    };
    for (int32_t j = 0; j < 4; ++j) {
      fs::path file = bulkFile(bulk, nextLink++ % kBulkFileCount);
      shelf.addLink(owner, holders[j % 3], file.stem().string(), file);
    }
    if (i % 50 == 0) {
      shelf.addLink(owner, holders[1], "Lost letter",
                    bulk / ("Missing Letter " + std::to_string(i) + ".docx"));
    }
  }

  if (firstMain >= 0) {
    DocOwner owner{sample::kFirmCompanyID + 1, -1};
    int32_t archive =
        shelf.addCategory(owner, firstMain, "Bulk Archive", "Scanned archive of past years", "",
                          sample::kOrdinaryCategory, 9);
    for (int32_t k = 0; k < kBulkArchiveLinks; ++k) {
      fs::path file = k % 1000 == 999 ? bulk / ("Missing Scan " + std::to_string(k) + ".pdf")
                                      : bulkFile(bulk, k % kBulkFileCount);
      shelf.addLink(owner, archive, file.stem().string(), file);
    }
  }
  out.commit();
  return summary;
}

}  // namespace qb

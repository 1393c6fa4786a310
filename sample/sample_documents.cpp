#include "sample/sample_documents.h"

#include "sample/sample_files.h"
#include "sample/sample_firm_parts.h"

namespace qb::sample {
namespace {

Field ownerField(const char* column, int32_t id) {
  return id >= 0 ? Field(column, id) : Field(column, nullptr);
}

const char* const kWorkstations[] = {"RVA-WS01", "RVA-WS02", "RVA-LAPTOP03", "RVA-WS04"};

}  // namespace

std::vector<std::string> documentLines(const std::filesystem::path& file, const std::string& client,
                                       const std::string& contact) {
  std::string extension = file.extension().string();
  if (extension == ".csv" || extension == ".xlsx") {
    return {"Account,Description,Debit,Credit",
            "1000,Cash,15234.55,",
            "1200,Accounts Receivable,8450.00,",
            "1500,Equipment,22100.00,",
            "2000,Accounts Payable,,6120.40",
            "2300,GST/HST Payable,,1877.12",
            "3000,Share Capital,,100.00",
            "4000,Sales,,98231.77",
            "5000,Cost of Sales,41220.16,",
            "6000,Rent,18000.00,",
            "6100,Wages,1324.58,"};
  }
  std::string greeting = contact.empty() ? "Dear Sir or Madam," : "Dear " + contact + ",";
  return {"Rideau Valley Accounting LLP",
          "200 Elgin Street, Suite 700, Ottawa ON K2P 1L5",
          "",
          "Client: " + client,
          "",
          greeting,
          "Please find enclosed " + file.stem().string() + ".",
          "Do not hesitate to call us with any question.",
          "",
          "Yours truly,",
          "Marie Tremblay, CPA"};
}

std::string clientFolderName(const std::string& name) {
  std::string folder;
  for (char c : name) {
    bool refused = std::string("/\\:*?\"<>|").find(c) != std::string::npos;
    folder += refused ? '-' : c;
  }
  while (!folder.empty() && (folder.back() == '.' || folder.back() == ' ')) folder.pop_back();
  return folder;
}

int32_t DocumentShelf::addCategory(const DocOwner& owner, int32_t parent, const std::string& name,
                                   const std::string& description, const std::string& synchFolder,
                                   DocCategoryKind kind, int32_t sortOrder) {
  int32_t id = nextCategoryID_++;
  out_.insert("DocCategories", {{"DocCategoryID", id},
                                ownerField("DocCategoryNum", parent),
                                ownerField("CompanyIDNum", owner.companyID),
                                ownerField("ContactIDNum", owner.contactID),
                                {"DocCategoryName", name},
                                {"DocCategoryDescription", description},
                                synchFolder.empty() ? Field("DocCategorySynchFolder", nullptr)
                                                    : Field("DocCategorySynchFolder", synchFolder),
                                {"DocCategorySpecialType", static_cast<int32_t>(kind)},
                                {"DocCategorySortOrder", sortOrder}});
  ++summary_.categories;
  return id;
}

int32_t DocumentShelf::addLink(const DocOwner& owner, int32_t category,
                               const std::string& displayName, const std::filesystem::path& file,
                               const std::string& host) {
  int32_t id = nextDocumentID_++;
  int32_t n = id - 1;
  // Links added over 2025, a few a day, in office hours.
  int32_t day = n / 3;
  std::string fileName = file.filename().string();
  out_.insert("Documents",
              {{"DocumentID", id},
               ownerField("CompanyIDNum", owner.companyID),
               ownerField("ContactIDNum", owner.contactID),
               {"DocCategoryNum", category},
               {"DocName", file.stem().string()},
               {"DocFileName", fileName},
               {"DocPath", file.string()},
               {"DocIconName", displayName},
               {"DocHostComputerName", host.empty() ? std::string(kWorkstations[n % 4]) : host},
               {"DocDateAdded",
                isoDateTime(2025, 1 + (day / 28) % 12, 1 + day % 28, 8 + n % 9, (n * 7) % 60)},
               {"DocAddedByUserIDNum", 1 + n % kEmployeeCount}});
  ++summary_.documents;
  return id;
}

void DocumentShelf::writeFile(const std::filesystem::path& file, const std::string& title,
                              const std::vector<std::string>& lines) {
  writeSampleFile(file, title, lines);
  ++summary_.files;
}

}  // namespace qb::sample

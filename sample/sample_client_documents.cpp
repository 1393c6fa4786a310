// The sample clients' document categories and links, and the files they
// point at: one folder per client under the files folder.

#include <filesystem>
#include <map>

#include "sample/sample_clients.h"

namespace qb::sample {
namespace {

namespace fs = std::filesystem;

struct FileSpec {
  const char* fileName;
  const char* displayName;
};

struct CategoryPlan {
  const char* name;
  const char* folder;  // under the client's folder
  int32_t parent;      // index of the parent in the same list, -1 for the main category
  std::vector<FileSpec> files;
};

const std::vector<CategoryPlan> kCompanyCategories = {
    {"Tax Returns", "Tax Returns", -1, {}},
    {"2024",
     "Tax Returns/2024",
     0,
     {{"T2 Corporate Return 2024.pdf", "2024 T2 Return (filed)"},
      {"Notice of Assessment 2024.pdf", "Notice of Assessment 2024"}}},
    {"2025",
     "Tax Returns/2025",
     0,
     {{"T2 Corporate Return 2025.pdf", "2025 T2 Return"},
      {"GIFI Schedule 100 2025.csv", "GIFI Balance Sheet 2025"},
      {"Notice of Assessment 2025.pdf", "Notice of Assessment 2025"}}},
    {"Financial Statements",
     "Financial Statements",
     -1,
     {{"Financial Statements 2025.xlsx", "Financial Statements 2025"},
      {"Trial Balance 2025.csv", "Trial Balance"},
      {"Adjusting Entries 2025.xlsx", "Adjusting Entries"}}},
    {"Correspondence",
     "Correspondence",
     -1,
     {{"Engagement Letter 2025.docx", "Engagement Letter"},
      {"Letter - Missing Receipts.txt", "Missing receipts letter"},
      {"Meeting Notes.odt", "Meeting notes"}}},
};

const std::vector<CategoryPlan> kContactCategories = {
    {"Personal Tax", "Personal Tax", -1, {{"T1 Return 2024.pdf", "2024 T1 Return"}}},
    {"2025",
     "Personal Tax/2025",
     0,
     {{"T1 Return 2025.pdf", "2025 T1 Return"},
      {"T4 Slips 2025.pdf", "T4 slips"},
      {"Donation Receipts.png", "Donation receipts (scan)"}}},
    {"Correspondence",
     "Correspondence",
     -1,
     {{"Tax Organizer Letter.docx", "Tax organizer letter"},
      {"Questions for 2025.txt", "Questions for 2025"},
      {"Interview Notes.odt", "Interview notes"}}},
};

const int32_t kPersonalClients[] = {6, 8, 31, 34};

// The read-only file, the links whose file is missing and the one whose
// folder is gone.
constexpr int32_t kReadOnlyCompany = 2;
constexpr int32_t kMissingFileCompany = 3;
constexpr int32_t kMissingFileCompany2 = 5;
constexpr int32_t kFolderGoneCompany = 4;

class ClientShelf {
 public:
  ClientShelf(DocumentShelf& shelf, DocOwner owner, fs::path folder, std::string client,
              std::string contact, int32_t variety)
      : shelf_(shelf),
        owner_(owner),
        folder_(std::move(folder)),
        client_(std::move(client)),
        contact_(std::move(contact)),
        variety_(variety) {}

  int32_t category(int32_t parent, const std::string& name, const std::string& synchFolder,
                   DocCategoryKind kind, int32_t sortOrder) {
    std::string description = kind == kMainCategory ? "All documents of " + client_ : "";
    return shelf_.addCategory(owner_, parent, name, description, synchFolder, kind, sortOrder);
  }

  // A link to a file that is written.
  void file(int32_t category, const fs::path& path, const std::string& displayName) {
    shelf_.writeFile(path, displayName + " - " + client_, documentLines(path, client_, contact_));
    shelf_.addLink(owner_, category, displayName, path);
  }

  // The planned categories under main, with a varying subset of their
  // files: the first file of each always, the others two times in three.
  void fill(int32_t main, const std::vector<CategoryPlan>& plans) {
    std::vector<int32_t> ids;
    for (size_t n = 0; n < plans.size(); ++n) {
      const CategoryPlan& plan = plans[n];
      int32_t parent = plan.parent < 0 ? main : ids[plan.parent];
      fs::path folder = folder_ / plan.folder;
      ids.push_back(category(parent, plan.name, folder.string(), kOrdinaryCategory,
                             static_cast<int32_t>(n) + 2));
      for (size_t f = 0; f < plan.files.size(); ++f) {
        if (f > 0 && (variety_ + static_cast<int32_t>(n + f)) % 3 == 0) continue;
        file(ids.back(), folder / plan.files[f].fileName, plan.files[f].displayName);
      }
      categoryIDs_[plan.folder] = ids.back();
    }
  }

  int32_t categoryOf(const std::string& folder) const { return categoryIDs_.at(folder); }
  const DocOwner& owner() const { return owner_; }

 private:
  DocumentShelf& shelf_;
  DocOwner owner_;
  fs::path folder_;
  std::string client_;
  std::string contact_;
  int32_t variety_;
  std::map<std::string, int32_t> categoryIDs_;
};

std::string defaultContactName(int32_t companyID) {
  for (const SampleContact& c : sampleContacts()) {
    if (c.company == companyID) return std::string(c.prefix) + " " + c.last;
  }
  return "";
}

void companyDocuments(DocumentShelf& shelf, const fs::path& root, const SampleCompany& company) {
  fs::path folder = root / clientFolderName(company.name);
  ClientShelf client(shelf, DocOwner{company.id, -1}, folder, company.name,
                     defaultContactName(company.id), company.id);
  int32_t main = client.category(-1, company.name, folder.string(), kMainCategory, 0);
  int32_t merge = client.category(main, "Merge Documents", (folder / "Merge Documents").string(),
                                  kMergeFolderCategory, 1);
  client.file(main, folder / "Logo.png", "Company logo");
  client.file(merge, folder / "Merge Documents" / "Year-End Reminder.docx", "Year-End Reminder");
  client.fill(main, kCompanyCategories);

  int32_t correspondence = client.categoryOf("Correspondence");
  if (company.id == kReadOnlyCompany) {
    fs::path filed = folder / "Tax Returns" / "2024" / "T2 Corporate Return 2024.pdf";
    fs::permissions(filed, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  }
  if (company.id == kMissingFileCompany) {
    shelf.addLink(client.owner(), correspondence, "Engagement Letter 2019",
                  folder / "Correspondence" / "Engagement Letter 2019.docx");
  }
  if (company.id == kMissingFileCompany2) {
    shelf.addLink(client.owner(), client.categoryOf("Financial Statements"),
                  "Financial Statements 2023",
                  folder / "Financial Statements" / "Financial Statements 2023.xlsx");
  }
  if (company.id == kFolderGoneCompany) {
    // The archive folder was on the old server and is gone.
    shelf.addLink(client.owner(), correspondence, "Scanned receipts 2015",
                  folder / "Archives 2015" / "Scanned Receipts 2015.pdf", "RVA-OLDSERVER");
  }
}

void contactDocuments(DocumentShelf& shelf, const fs::path& root, const SampleContact& contact) {
  std::string name = sampleDisplayName(contact);
  fs::path folder = root / clientFolderName(name);
  ClientShelf client(shelf, DocOwner{-1, contact.id}, folder, name,
                     std::string(contact.prefix) + " " + contact.last, contact.id);
  int32_t main = client.category(-1, name, folder.string(), kMainCategory, 0);
  int32_t shortcuts =
      client.category(main, "Merge Document Shortcuts", "", kMergeShortcutsCategory, 1);
  client.fill(main, kContactCategories);
  fs::path merged = folder / "Merge Documents" / "Tax Organizer.docx";
  client.file(shortcuts, merged, "Tax organizer (merged)");
}

}  // namespace

void writeSampleDocuments(DocumentShelf& shelf, const fs::path& root) {
  for (const SampleCompany& company : sampleCompanies()) companyDocuments(shelf, root, company);
  for (int32_t id : kPersonalClients) contactDocuments(shelf, root, sampleContact(id));
}

}  // namespace qb::sample

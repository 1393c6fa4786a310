#pragma once
// DocumentShelf: writes a client's document categories and links, and the
// real files the links point at, numbering rows from 1 and counting what it
// made into a FirmSummary.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "sample/sample_firm.h"
#include "sample/sample_writer.h"

namespace qb::sample {

// Whose categories and links: a company or a contact (the other id -1).
struct DocOwner {
  int32_t companyID = -1;
  int32_t contactID = -1;
};

// Kinds of category, as DocCategories.DocCategorySpecialType stores them.
enum DocCategoryKind : int32_t {
  kOrdinaryCategory = 0,
  kMainCategory = 1,
  kMergeFolderCategory = 2,
  kMergeShortcutsCategory = 3,
};

// The lines of a client's document file, by its type: a trial balance for
// .csv and .xlsx files, a short letter otherwise.
std::vector<std::string> documentLines(const std::filesystem::path& file, const std::string& client,
                                       const std::string& contact);

// A client's folder name: the name with the characters that no file system
// takes replaced by "-", and no trailing dots or blanks.
std::string clientFolderName(const std::string& name);

class DocumentShelf {
 public:
  DocumentShelf(SampleWriter& out, FirmSummary& summary) : out_(out), summary_(summary) {}

  // Adds a category and returns its DocCategoryID. parent -1 for the top.
  int32_t addCategory(const DocOwner& owner, int32_t parent, const std::string& name,
                      const std::string& description, const std::string& synchFolder,
                      DocCategoryKind kind, int32_t sortOrder);

  // Adds a link to file in category, shown as displayName. The added-by
  // user, the computer and the date come from the running link number, so
  // they vary from link to link. host empty: the computer of the rotation.
  int32_t addLink(const DocOwner& owner, int32_t category, const std::string& displayName,
                  const std::filesystem::path& file, const std::string& host = "");

  // Writes a real file for a link (see writeSampleFile) and counts it.
  void writeFile(const std::filesystem::path& file, const std::string& title,
                 const std::vector<std::string>& lines);

 private:
  SampleWriter& out_;
  FirmSummary& summary_;
  int32_t nextCategoryID_ = 1;
  int32_t nextDocumentID_ = 1;
};

}  // namespace qb::sample

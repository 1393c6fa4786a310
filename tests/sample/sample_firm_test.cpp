#include "sample/sample_firm.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>

#include "tests/support/temp_folder.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

// The first column of every row of a query, as text ("" for Null).
std::vector<std::string> column(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READONLY, nullptr);
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
    std::string message = sqlite3_errmsg(db);
    sqlite3_close(db);
    throw std::runtime_error(message + " in " + sql);
  }
  std::vector<std::string> values;
  while (sqlite3_step(stmt) == SQLITE_ROW) {
    const unsigned char* text = sqlite3_column_text(stmt, 0);
    values.emplace_back(text != nullptr ? reinterpret_cast<const char*>(text) : "");
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
  return values;
}

std::string scalar(const std::string& path, const std::string& sql) {
  auto values = column(path, sql);
  return values.empty() ? "" : values.front();
}

TEST(SampleFirm, CreatesTheSchemaOnceUnlessToldToOverwrite) {
  test::TempFolder folder;
  std::string path = folder.file("sub/client.db");
  createDatabase(path);
  auto counts = tableRowCounts(path);
  EXPECT_EQ(counts.size(), 30u);
  EXPECT_EQ(counts.front().first, "AccountantEmployeeInfo");
  EXPECT_EQ(counts.back().first, "WSIB_EHTInfo");
  for (const auto& [table, rows] : counts) EXPECT_EQ(rows, 0) << table;

  EXPECT_THROW(createDatabase(path), std::runtime_error);
  fillSampleFirm(path, folder.file("files"));
  createDatabase(path, true);
  EXPECT_EQ(scalar(path, "SELECT COUNT(*) FROM Companies;"), "0");
  EXPECT_EQ(defaultFilesFolder("/data/firm.db"), "/data/firm-files");
}

TEST(SampleFirm, HoldsThePromisedShapes) {
  test::TempFolder folder;
  std::string db = folder.file("sample.db");
  createDatabase(db);
  FirmSummary made = fillSampleFirm(db, folder.file("files"));
  EXPECT_EQ(made.filesFolder, folder.file("files"));
  EXPECT_EQ(std::to_string(made.documents), scalar(db, "SELECT COUNT(*) FROM Documents;"));

  // Links and default contacts: one company without links, one without a
  // default, all others with exactly one.
  EXPECT_EQ(column(db,
                   "SELECT CompanyName FROM Companies WHERE CompanyID NOT IN "
                   "(SELECT CompanyNum FROM ContactLinks WHERE CompanyNum IS NOT NULL);"),
            std::vector<std::string>{"Sunrise Landscaping"});
  EXPECT_EQ(column(db,
                   "SELECT CompanyNum FROM ContactLinks WHERE CompanyNum IS NOT NULL "
                   "GROUP BY CompanyNum HAVING SUM(DefaultContact) <> 1;"),
            std::vector<std::string>{"11"});
  // Each company's copy of its default contact's details is what refreshing
  // it from the contact would write (branches included); without a default,
  // the copy is empty.
  EXPECT_EQ(column(db,
                   "SELECT c.CompanyName FROM Companies c LEFT JOIN ContactLinks l ON "
                   "l.CompanyNum = c.CompanyID AND l.DefaultContact = 1 LEFT JOIN Contacts k "
                   "ON k.ContactID = l.ContactIDNum WHERE "
                   "IFNULL(c.DefaultContactName, '') <> IFNULL(k.DisplayName, '') OR "
                   "IFNULL(c.DefaultContactPhoneNumber, '') <> IFNULL(k.BusinessPhone_Main, '') "
                   "OR IFNULL(c.DefaultContactFaxNumber, '') <> IFNULL(k.BusinessPhone_Fax, '') "
                   "OR IFNULL(c.DefaultContactEmail, '') <> IFNULL(k.BusinessEmail, '');"),
            std::vector<std::string>{});
  EXPECT_EQ(scalar(db,
                   "SELECT DisplayName FROM Contacts WHERE ContactPersonalTaxDisplayType = 2 "
                   "AND SpouseLastName = LastName;"),
            "Pierre & Hélène Côté");
  EXPECT_EQ(scalar(db,
                   "SELECT CategoryName FROM Categories WHERE CategorySpecialCode = 'Main' "
                   "AND CategoryNum IS NULL;"),
            "Address Book");
  EXPECT_EQ(column(db, "SELECT UserIDNum FROM UserGeneralSettings;"),
            std::vector<std::string>{"1"});
  EXPECT_EQ(scalar(db, "SELECT COUNT(*) FROM Companies WHERE CompanyNum IS NOT NULL;"), "2");

  // Every client company has its client data under one number, so the
  // main business join gives one row for each.
  EXPECT_EQ(scalar(db,
                   "SELECT COUNT(*) FROM ((Companies INNER JOIN ClientData ON "
                   "Companies.CompanyID = ClientData.CompanyIDNum) INNER JOIN ClientUSInfo ON "
                   "ClientData.ClientDataID = ClientUSInfo.ClientUSInfoID) INNER JOIN "
                   "CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum;"),
            std::to_string(made.companies));

  // Every link lies in a category of its own client; every client has one
  // main category and one holding its merge documents.
  EXPECT_EQ(scalar(db,
                   "SELECT COUNT(*) FROM Documents d JOIN DocCategories c ON "
                   "c.DocCategoryID = d.DocCategoryNum WHERE IFNULL(c.CompanyIDNum, -1) <> "
                   "IFNULL(d.CompanyIDNum, -1) OR IFNULL(c.ContactIDNum, -1) <> "
                   "IFNULL(d.ContactIDNum, -1);"),
            "0");
  EXPECT_EQ(scalar(db,
                   "SELECT COUNT(*) FROM Documents WHERE DocCategoryNum NOT IN "
                   "(SELECT DocCategoryID FROM DocCategories);"),
            "0");
  EXPECT_EQ(
      scalar(db, "SELECT COUNT(*) FROM DocCategories WHERE DocCategorySpecialType = 1;"),
      scalar(db, "SELECT COUNT(*) FROM DocCategories WHERE DocCategorySpecialType IN (2, 3);"));

  // The files: most links reach a file; the read-only one is read-only;
  // two links miss their file in a folder that exists, one its folder too.
  int present = 0;
  std::vector<std::string> missingFile, missingFolder;
  for (const std::string& path : column(db, "SELECT DocPath FROM Documents;")) {
    if (fs::exists(path)) {
      ++present;
    } else {
      (fs::is_directory(fs::path(path).parent_path()) ? missingFile : missingFolder)
          .push_back(path);
    }
  }
  EXPECT_EQ(present, made.documents - 3);
  EXPECT_EQ(missingFile.size(), 2u);
  ASSERT_EQ(missingFolder.size(), 1u);
  EXPECT_NE(missingFolder.front().find("Archives 2015"), std::string::npos);
  fs::path readOnly = folder.path() / "files" / "Maple Leaf Bakery Ltd" / "Tax Returns" / "2024" /
                      "T2 Corporate Return 2024.pdf";
  ASSERT_TRUE(fs::exists(readOnly));
  EXPECT_EQ(fs::status(readOnly).permissions() & fs::perms::owner_write, fs::perms::none);
  EXPECT_EQ(
      scalar(db, "SELECT COUNT(*) FROM Documents WHERE DocPath = '" + readOnly.string() + "';"),
      "1");
}

TEST(SampleFirm, GeneratesClientsAndTheBulkArchive) {
  test::TempFolder folder;
  std::string db = folder.file("big.db");
  createDatabase(db);
  FirmSummary made = generateFirm(db, folder.file("files"), 3);
  EXPECT_EQ(made.companies, 3);
  EXPECT_EQ(scalar(db, "SELECT COUNT(*) FROM ClientData;"), "3");
  EXPECT_EQ(scalar(db, "SELECT COUNT(*) FROM Contacts;"), "11");
  EXPECT_EQ(scalar(db,
                   "SELECT COUNT(*) FROM Documents d JOIN DocCategories c ON "
                   "c.DocCategoryID = d.DocCategoryNum WHERE c.DocCategoryName = 'Bulk Archive' "
                   "AND c.CompanyIDNum = 2 AND d.CompanyIDNum = 2;"),
            "5000");
  auto files = column(db, "SELECT DISTINCT DocPath FROM Documents;");
  int missing = 0;
  for (const std::string& path : files) missing += fs::exists(path) ? 0 : 1;
  EXPECT_EQ(missing, 5);
  EXPECT_EQ(files.size(), 205u);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path() / "files" / "bulk"),
                          fs::directory_iterator()),
            200);
}

}  // namespace
}  // namespace qb

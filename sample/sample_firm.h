#pragma once
// Client databases for trying and measuring the system: an empty one with
// the schema, the sample firm (a small Canadian accounting firm with its
// clients, work records and document links to real files), and generated
// firms of any size for benchmarks. Deterministic: the same call makes the
// same rows and files.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace qb {

// What a fill made, for the tool to report.
struct FirmSummary {
  int32_t companies = 0;    // client companies, branches included
  int32_t contacts = 0;     // contacts, the firm's employees included
  int32_t categories = 0;   // document categories
  int32_t documents = 0;    // document links
  int32_t files = 0;        // real files written
  std::string filesFolder;  // where the files are, as an absolute path
};

class DatabaseReference;

// Creates a database file holding the whole schema and no rows, with the
// folders on the way, as makeDatabase does (new_database.h). Throws
// std::runtime_error when the file exists already, unless overwrite is true,
// which replaces it when no other program holds it.
void createDatabase(const std::string& path, bool overwrite = false);

// Fills a database made by createDatabase with the sample firm and writes the
// files its document links point at under filesFolder, one folder per
// client. Among them: a read-only file, links whose file is missing, and one
// whose folder is gone. Throws std::runtime_error on failure; the rows are
// written in one transaction, so a failure leaves no rows behind.
FirmSummary fillSampleFirm(const std::string& path, const std::string& filesFolder);

// Fills a database made by createDatabase with a firm of clientCount client
// companies, each with two contacts, its client data, document categories and
// links. The links point at 200 real files written under filesFolder/bulk,
// shared by all clients, a few at missing ones. Client 1 also has the
// category "Bulk Archive" of 5,000 links. One transaction.
FirmSummary generateFirm(const std::string& path, const std::string& filesFolder,
                         int32_t clientCount);

// The number of rows in each table of the database, sorted by table name.
// Fails as the store does (a RuntimeError that says what is wrong), also for
// a file that is no client database.
std::vector<std::pair<std::string, int64_t>> tableRowCounts(DatabaseReference& store);
std::vector<std::pair<std::string, int64_t>> tableRowCounts(const std::string& path);

// The files folder that goes with a database by default: "<stem>-files"
// beside it.
std::string defaultFilesFolder(const std::string& path);

}  // namespace qb

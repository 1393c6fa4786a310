// The document list fill on a large category: setupDocumentsDisplay on the
// "Bulk Archive" category of a generated firm (5,000 links to 200 real files),
// headless, beside the cost of that category's file queries alone: the size
// and the three dates of each link's file asked one by one (four calls, as
// the fill once made them), and one metadata call per file, the least a fill
// can make. The fill is meant to cost at most three times its file queries
// and to make one metadata call per row. The same fill over a share where
// every call costs 200 microseconds is meant to take under 1.5 seconds.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "bench/slow_share.h"
#include "control/nv_document_quillbox.h"
#include "control/row_tags.h"
#include "data/mod_database_functions.h"
#include "sample/sample_firm.h"
#include "services/errors/console_error_object.h"
#include "services/files/file_facts_service.h"
#include "services/files/system_file_facts.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "services/host/working_folder.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "services/store/sqlite_database.h"
#include "services/util/file_utilities_class.h"

namespace {

namespace fs = std::filesystem;

// The generated firm and a started component showing client company 2, the
// owner of "Bulk Archive". Made once for the whole run.
struct BulkFirm {
  BulkFirm() {
    std::string pattern = (fs::temp_directory_path() / "qbbench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    std::string path = (folder / "firm.db").string();
    qb::createDatabase(path);
    qb::generateFirm(path, (folder / "files").string(), 20);
    store = std::make_shared<qb::SqliteDatabase>();
    store->open(path);
    addDistinctArchive(*store);

    quillbox.Initialize();
    quillbox.setErrorClass(std::make_shared<qb::ConsoleErrorObject>());
    quillbox.setMsgboxClass(std::make_shared<qb::RecordingMessageObject>());
    quillbox.setDatabaseReference(store);
    quillbox.setWorkingFolderReference(std::make_shared<qb::FixedWorkingFolder>(folder.string()));
    quillbox.setLocaleReference(std::make_shared<qb::FixedLocale>());
    quillbox.setCompanyIDNum(2);
    quillbox.StartDocQuillboxControl();
    quillbox.populateClientDocumentCategories();
    qb::TreeView& tree = quillbox.tvClientDocumentation();
    for (int32_t i = 1; i <= tree.Nodes().Count(); ++i) {
      if (tree.Nodes().item(i).Text() == "Bulk Archive")
        tree.setSelectedItem(&tree.Nodes().item(i));
    }
    quillbox.setupDocumentsDisplay();
    for (int32_t i = 1; i <= tree.Nodes().Count(); ++i) {
      if (tree.Nodes().item(i).Text() == "Distinct Archive") distinctNode = &tree.Nodes().item(i);
    }
    qb::ListView& list = quillbox.lvDocuments();
    for (int32_t i = 1; i <= list.ListItems().Count(); ++i) {
      paths.push_back(quillbox.getDocPathFromTag(list.ListItems().item(i).Tag()));
    }
    categoryID = quillbox.categoryObject()->categoryID();
  }
  // A category of company 2 whose 5,000 links each have a file of their own.
  void addDistinctArchive(qb::SqliteDatabase& store) {
    const fs::path distinct = folder / "files" / "distinct";
    fs::create_directories(distinct);
    for (int i = 0; i < 5000; ++i) {
      std::ofstream(distinct / ("Scan " + std::to_string(i) + ".pdf")) << "%PDF-1.4";
    }
    store.executeScript(
        "INSERT INTO DocCategories (DocCategoryNum, CompanyIDNum, DocCategoryName,"
        " DocCategorySpecialType) SELECT DocCategoryID, 2, 'Distinct Archive', 0 FROM"
        " DocCategories WHERE CompanyIDNum = 2 AND DocCategorySpecialType = 1 LIMIT 1;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 4999)"
        " INSERT INTO Documents (CompanyIDNum, DocCategoryNum, DocPath, DocIconName,"
        " DocAddedByUserIDNum) SELECT 2, (SELECT MAX(DocCategoryID) FROM DocCategories), '" +
        distinct.string() + "/Scan ' || i || '.pdf', 'Scan ' || i, 1 FROM n;");
  }

  fs::path folder;
  std::shared_ptr<qb::SqliteDatabase> store;
  qb::nvDocumentQuillbox quillbox;
  std::vector<std::string> paths;  // the category's file paths, one per link
  int32_t categoryID = -1;
  qb::Node* distinctNode = nullptr;
};

// Removes the firm's folder at the end of the run. The firm itself is never
// destroyed: the module state it uses is gone by the time static objects are.
struct RemoveAtExit {
  fs::path folder;
  ~RemoveAtExit() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
};

BulkFirm& bulkFirm() {
  static BulkFirm* firm = new BulkFirm;
  static RemoveAtExit cleanup{firm->folder};
  return *firm;
}

// Fills the list with a category over the local disk or the slow share, and
// counts the metadata calls per row.
void fillCategory(benchmark::State& state, qb::Node* category, bool slowShare) {
  BulkFirm& firm = bulkFirm();
  qb::TreeView& tree = firm.quillbox.tvClientDocumentation();
  qb::Node* shown = tree.SelectedItem();
  if (category != nullptr) tree.setSelectedItem(category);
  std::shared_ptr<qb::FileFactsBackend> files =
      slowShare ? std::make_shared<qb::bench::SlowShare>((firm.folder / "files").string())
                : std::make_shared<qb::SystemFileFacts>();
  auto service = std::make_shared<qb::FileFactsService>(files);
  qb::installFileFacts(service);
  for (auto _ : state) {
    firm.quillbox.setupDocumentsDisplay();
    benchmark::DoNotOptimize(firm.quillbox.lvDocuments().ListItems().Count());
  }
  const int32_t rows = firm.quillbox.lvDocuments().ListItems().Count();
  state.counters["rows"] = rows;
  state.counters["metadata_calls_per_row"] =
      static_cast<double>(service->metadataCalls()) /
      (static_cast<double>(rows) * static_cast<double>(state.iterations()));
  qb::installFileFacts(nullptr);
  tree.setSelectedItem(shown);
}

void BM_FillBulkArchive(benchmark::State& state) { fillCategory(state, nullptr, false); }
BENCHMARK(BM_FillBulkArchive)->Unit(benchmark::kMillisecond);

void BM_FillBulkArchiveOnASlowShare(benchmark::State& state) { fillCategory(state, nullptr, true); }
BENCHMARK(BM_FillBulkArchiveOnASlowShare)->Unit(benchmark::kMillisecond)->UseRealTime();

// 5,000 links to 5,000 files of their own, on the local disk and on the
// slow share.
void BM_FillDistinctFiles(benchmark::State& state) {
  fillCategory(state, bulkFirm().distinctNode, false);
}
BENCHMARK(BM_FillDistinctFiles)->Unit(benchmark::kMillisecond);

void BM_FillDistinctFilesOnASlowShare(benchmark::State& state) {
  fillCategory(state, bulkFirm().distinctNode, true);
}
BENCHMARK(BM_FillDistinctFilesOnASlowShare)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_OneMetadataCallPerDistinctFile(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  qb::SystemFileFacts files;
  const std::string folder = (firm.folder / "files" / "distinct").string();
  for (auto _ : state) {
    for (int i = 0; i < 5000; ++i)
      benchmark::DoNotOptimize(files.query(folder + "/Scan " + std::to_string(i) + ".pdf"));
  }
}
BENCHMARK(BM_OneMetadataCallPerDistinctFile)->Unit(benchmark::kMillisecond);

void BM_FileQueriesBulkArchive(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  qb::fileUtilitiesClass files;
  for (auto _ : state) {
    for (const std::string& path : firm.paths) {
      benchmark::DoNotOptimize(files.getFileSize(path));
      benchmark::DoNotOptimize(files.getFileDate(path, qb::fileDateLastModified, true));
      benchmark::DoNotOptimize(files.getFileDate(path, qb::fileDateCreated, true));
      benchmark::DoNotOptimize(files.getFileDate(path, qb::fileDateLastAccessed, true));
    }
  }
  state.counters["files"] = static_cast<double>(firm.paths.size());
}
BENCHMARK(BM_FileQueriesBulkArchive)->Unit(benchmark::kMillisecond);

void BM_OneMetadataCallPerFileBulkArchive(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  qb::SystemFileFacts files;
  for (auto _ : state) {
    for (const std::string& path : firm.paths) benchmark::DoNotOptimize(files.query(path));
  }
  state.counters["files"] = static_cast<double>(firm.paths.size());
}
BENCHMARK(BM_OneMetadataCallPerFileBulkArchive)->Unit(benchmark::kMillisecond);

// The parts of the fill that are not file queries, for the breakdown: the
// category's load by the library (its rows and each file's reachability) and
// the user-name look-up of every row.
void BM_CategoryLoadBulkArchive(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  qb::docQuillboxCategoryClass category;
  category.setCategoryID(firm.categoryID);
  for (auto _ : state) {
    bool loadDocuments = true, loaded = false;
    category.loadCategory(loadDocuments, loaded);
    benchmark::DoNotOptimize(loaded);
  }
}
BENCHMARK(BM_CategoryLoadBulkArchive)->Unit(benchmark::kMillisecond);

void BM_UserNameLookupsBulkArchive(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  for (auto _ : state) {
    for (size_t i = 0; i < firm.paths.size(); ++i) {
      benchmark::DoNotOptimize(qb::modDatabaseFunctions::getUserNameFromUserID(1));
    }
  }
}
BENCHMARK(BM_UserNameLookupsBulkArchive)->Unit(benchmark::kMillisecond);

// The load of "Distinct Archive" with its documents, without a synchronised
// folder (0) and with the folder that holds the 5,000 files it already links
// (1): what the folder costs every load of its category once nothing new is
// in it (the folder listed, the links' paths read and compared).
void BM_CategoryLoadDistinctFiles(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  const int32_t id = qb::rowTags::categoryIDFromKey(firm.distinctNode->Key());
  auto setFolder = [&](const std::string& value) {
    firm.store->executeScript("UPDATE DocCategories SET DocCategorySynchFolder = " + value +
                              " WHERE DocCategoryID = " + std::to_string(id) + ";");
  };
  if (state.range(0) == 1) setFolder("'" + (firm.folder / "files" / "distinct").string() + "'");
  qb::docQuillboxCategoryClass category;
  category.setCategoryID(id);
  for (auto _ : state) {
    bool loadDocuments = true, loaded = false;
    category.loadCategory(loadDocuments, loaded);
    benchmark::DoNotOptimize(loaded);
  }
  // Every file was linked already: the folder added no link.
  int links = 0;
  bool more = false;
  for (category.moveFirstDocument(more); more; category.moveNextDocument(more)) ++links;
  state.counters["links"] = links;
  setFolder("NULL");
}
BENCHMARK(BM_CategoryLoadDistinctFiles)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

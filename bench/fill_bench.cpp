// The document list fill on a large category: setupDocumentsDisplay on the
// "Bulk Archive" category of a generated firm (5,000 links to 200 real files),
// headless, beside the cost of that category's file queries alone (the size
// and the three dates of each link's file). The fill is meant to cost at most
// three times its file queries.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "control/nv_document_quillbox.h"
#include "data/mod_database_functions.h"
#include "services/errors/console_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "services/host/working_folder.h"
#include "services/quillbox/doc_quillbox_category_class.h"
#include "sample/sample_firm.h"
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
    auto store = std::make_shared<qb::SqliteDatabase>();
    store->open(path);

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
    qb::ListView& list = quillbox.lvDocuments();
    for (int32_t i = 1; i <= list.ListItems().Count(); ++i) {
      paths.push_back(quillbox.getDocPathFromTag(list.ListItems().item(i).Tag()));
    }
    categoryID = quillbox.categoryObject()->categoryID();
  }
  fs::path folder;
  qb::nvDocumentQuillbox quillbox;
  std::vector<std::string> paths;  // the category's file paths, one per link
  int32_t categoryID = -1;
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

void BM_FillBulkArchive(benchmark::State& state) {
  BulkFirm& firm = bulkFirm();
  for (auto _ : state) {
    firm.quillbox.setupDocumentsDisplay();
    benchmark::DoNotOptimize(firm.quillbox.lvDocuments().ListItems().Count());
  }
  state.counters["rows"] = firm.quillbox.lvDocuments().ListItems().Count();
}
BENCHMARK(BM_FillBulkArchive)->Unit(benchmark::kMillisecond);

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

}  // namespace

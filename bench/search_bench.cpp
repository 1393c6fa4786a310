// The find dialog's search over every client of a large firm: 100,000
// document rows (a generated firm of 20 clients, topped up with scanned
// documents spread over its companies and contacts), headless. A text that
// few rows hold measures the walk and the four-field test; "tax" matches
// about one row in ten and adds the results and their client names. The
// search is meant to take under one second.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "dialogs/frm_find_document.h"
#include "services/errors/console_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/recording_message_object.h"
#include "sample/sample_firm.h"
#include "services/store/sqlite_database.h"
#include "services/util/file_utilities_class.h"
#include "services/util/general_utilities_class.h"
#include "services/util/standard_form_helper.h"

namespace {

namespace fs = std::filesystem;

constexpr int kDocumentRows = 100000;

struct SearchFirm {
  SearchFirm() {
    std::string pattern = (fs::temp_directory_path() / "qbbench-search-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    const std::string path = (folder / "firm.db").string();
    qb::createDatabase(path);
    qb::generateFirm(path, (folder / "files").string(), 20);
    auto store = std::make_shared<qb::SqliteDatabase>();
    store->open(path);
    // Scanned documents up to 100,000 rows, every tenth a tax document,
    // spread over the companies and, one in four, their contacts.
    store->executeScript(
        "WITH RECURSIVE n(i) AS (SELECT (SELECT COUNT(*) FROM Documents) + 1 UNION ALL"
        " SELECT i + 1 FROM n WHERE i < " +
        std::to_string(kDocumentRows) +
        ") INSERT INTO Documents (CompanyIDNum, ContactIDNum, DocCategoryNum, DocName,"
        " DocFileName, DocPath, DocIconName, DocHostComputerName) SELECT"
        " CASE WHEN i % 4 = 0 THEN NULL ELSE 1 + i % 20 END,"
        " CASE WHEN i % 4 = 0 THEN (SELECT MIN(ContactID) FROM Contacts) + i % 40 ELSE NULL END,"
        " 1, 'Scan ' || i, 'Scan ' || i || '.pdf',"
        " '/srv/firm/Clients/Client ' || (1 + i % 20) || '/Archive/Scan ' || i || '.pdf',"
        " CASE WHEN i % 10 = 0 THEN 'Tax slip ' || i ELSE 'Receipt ' || i END, 'OFFICE-1'"
        " FROM n;");
    qb::resetModuleState();
    qb::ModuleState& module = qb::moduleState();
    module.databaseReference = store;
    module.errorClass = std::make_shared<qb::ConsoleErrorObject>();
    module.msgboxClass = std::make_shared<qb::RecordingMessageObject>();
    module.fileUtilities = std::make_shared<qb::fileUtilitiesClass>();
    module.generalUtilities = std::make_shared<qb::generalUtilitiesClass>();
    auto locale = std::make_shared<qb::FixedLocale>();
    locale->formHelper = std::make_shared<qb::StandardFormHelper>();
    module.localeReference = locale;
    form.initializeFind(1, -1);
    form.optSearchClients(1).setValue(true);
  }
  fs::path folder;
  qb::frmFindDocument form;
};

SearchFirm& searchFirm() {
  static SearchFirm* firm = new SearchFirm;
  static struct Cleanup {
    ~Cleanup() {
      std::error_code ignored;
      fs::remove_all(searchFirm().folder, ignored);
    }
  } cleanup;
  return *firm;
}

void searchAllClients(benchmark::State& state, const std::string& text) {
  qb::frmFindDocument& form = searchFirm().form;
  form.txtField().setText(text);
  for (auto _ : state) {
    form.cmdFind().click();
    benchmark::DoNotOptimize(form.rowsFound());
  }
  state.counters["rows_found"] = form.rowsFound();
}

void BM_FindInAllClientsFewMatches(benchmark::State& state) {
  searchAllClients(state, "scan 77777");
}
BENCHMARK(BM_FindInAllClientsFewMatches)->Unit(benchmark::kMillisecond);

void BM_FindInAllClientsTax(benchmark::State& state) { searchAllClients(state, "tax"); }
BENCHMARK(BM_FindInAllClientsTax)->Unit(benchmark::kMillisecond);

}  // namespace

// The link-health check over a firm of 5,000 and of 50,000 links, each to a
// file of its own (nine in ten there, the rest gone from a folder that is
// there or with their folder), spread over 500 client companies: the read of
// the links with their clients and categories, the check of their files, and
// both together as `quillbox links check` runs them. The check again over a
// share where every call costs 200 microseconds. The relink of 5,000
// links to a new folder, one write each. And the search by name for the
// broken links of the firm under its files folder, walked once.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>

#include "bench/bench_services.h"
#include "bench/slow_share.h"
#include "links/link_check.h"
#include "links/link_reader.h"
#include "links/locate.h"
#include "links/relink.h"
#include "sample/sample_firm.h"
#include "services/files/file_facts_service.h"
#include "services/host/module_state.h"
#include "services/store/sqlite_database.h"

namespace {

namespace fs = std::filesystem;

constexpr int kClients = 500;
constexpr int kFolders = 100;

// A firm of `links` links in a folder of its own, made once per size.
struct LinkFirm {
  explicit LinkFirm(int links) {
    std::string pattern = (fs::temp_directory_path() / "qblinks-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    const std::string db = (folder / "firm.db").string();
    qb::createDatabase(db);
    // Link i: folder i % 100; every tenth file is missing, and every
    // twentieth link points into a folder that is not there.
    for (int f = 0; f < kFolders; ++f) fs::create_directories(folder / "files" / std::to_string(f));
    for (int i = 0; i < links; ++i) {
      if (i % 10 == 0) continue;
      std::ofstream(folder / "files" / std::to_string(i % kFolders) /
                    ("Scan " + std::to_string(i) + ".pdf"))
          << "%PDF";
    }
    store = std::make_shared<qb::SqliteDatabase>();
    store->open(db);
    const std::string files = (folder / "files").string();
    store->executeScript(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        std::to_string(kClients) +
        ") INSERT INTO Companies (CompanyID, CompanyName) SELECT i, 'Client ' || i FROM n;"
        "INSERT INTO DocCategories (DocCategoryID, CompanyIDNum, DocCategoryName)"
        " SELECT CompanyID, CompanyID, 'Documents' FROM Companies;"
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        std::to_string(links - 1) +
        ") INSERT INTO Documents (CompanyIDNum, DocCategoryNum, DocIconName, DocPath,"
        " DocHostComputerName) SELECT 1 + i % " +
        std::to_string(kClients) + ", 1 + i % " + std::to_string(kClients) + ", 'Scan ' || i, '" +
        files + "/' || CASE WHEN i % 20 = 0 THEN 'gone/' ELSE '' END || (i % " +
        std::to_string(kFolders) + ") || '/Scan ' || i || '.pdf', 'OFFICE-1' FROM n;");
  }
  ~LinkFirm() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
  // Makes this firm's store the module's.
  void install() { qb::bench::installServices(store); }

  fs::path folder;
  std::shared_ptr<qb::SqliteDatabase> store;
};

LinkFirm& firmOf(int links) {
  static std::map<int, std::unique_ptr<LinkFirm>> firms;
  auto& firm = firms[links];
  if (!firm) firm = std::make_unique<LinkFirm>(links);
  firm->install();
  return *firm;
}

void BM_ReadLinks(benchmark::State& state) {
  firmOf(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(qb::links::readLinks(qb::links::LinkScope::all()));
  state.counters["links"] = static_cast<double>(state.range(0));
}
BENCHMARK(BM_ReadLinks)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

void BM_CheckFiles(benchmark::State& state) {
  firmOf(static_cast<int>(state.range(0)));
  const auto links = qb::links::readLinks(qb::links::LinkScope::all());
  qb::installFileFacts(nullptr);
  for (auto _ : state) benchmark::DoNotOptimize(qb::links::checkLinks(links));
  state.counters["links"] = static_cast<double>(links.size());
}
BENCHMARK(BM_CheckFiles)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

// readLinks and checkLinks, as the command runs them.
void BM_LinksCheck(benchmark::State& state) {
  firmOf(static_cast<int>(state.range(0)));
  qb::installFileFacts(nullptr);
  qb::links::StateCounts counts;
  for (auto _ : state) {
    counts = qb::links::countStates(
        qb::links::checkLinks(qb::links::readLinks(qb::links::LinkScope::all())));
  }
  state.counters["links"] = static_cast<double>(counts.total);
  state.counters["broken"] = static_cast<double>(counts.broken());
}
BENCHMARK(BM_LinksCheck)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

void BM_LinksCheckOnASlowShare(benchmark::State& state) {
  LinkFirm& firm = firmOf(static_cast<int>(state.range(0)));
  auto service = std::make_shared<qb::FileFactsService>(
      std::make_shared<qb::bench::SlowShare>((firm.folder / "files").string()));
  qb::installFileFacts(service);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        qb::links::checkLinks(qb::links::readLinks(qb::links::LinkScope::all())));
  }
  state.counters["metadata_calls"] =
      static_cast<double>(service->metadataCalls()) / static_cast<double>(state.iterations());
  qb::installFileFacts(nullptr);
}
BENCHMARK(BM_LinksCheckOnASlowShare)->Arg(5000)->Unit(benchmark::kMillisecond)->UseRealTime();

// The plan and apply of a relink of every link to a copy of the files
// folder, then back, so that each iteration relinks every found link.
void BM_RelinkApply(benchmark::State& state) {
  LinkFirm& firm = firmOf(static_cast<int>(state.range(0)));
  qb::installFileFacts(nullptr);
  const std::string files = (firm.folder / "files").string();
  const std::string copy = (firm.folder / "copy").string();
  if (!fs::exists(copy)) fs::create_directory_symlink(files, copy);
  std::string from = files, to = copy;
  size_t relinked = 0;
  for (auto _ : state) {
    const auto plan =
        qb::links::planRelink(qb::links::readLinks(qb::links::LinkScope::all()), from, to);
    relinked = plan.foundCount();
    benchmark::DoNotOptimize(qb::links::applyRelink(plan));
    std::swap(from, to);
  }
  state.counters["relinked"] = static_cast<double>(relinked);
}
BENCHMARK(BM_RelinkApply)->Arg(5000)->Unit(benchmark::kMillisecond);

// The plan of links locate: the broken links (one in ten) looked for by name
// in the one walk of the files folder, which holds the other nine in ten.
void BM_LocatePlan(benchmark::State& state) {
  LinkFirm& firm = firmOf(static_cast<int>(state.range(0)));
  qb::installFileFacts(nullptr);
  const auto checked = qb::links::checkLinks(qb::links::readLinks(qb::links::LinkScope::all()));
  const std::string files = (firm.folder / "files").string();
  qb::links::LocatePlan plan;
  for (auto _ : state) plan = qb::links::planLocate(checked, files);
  state.counters["looked_for"] = static_cast<double>(plan.rows.size());
  state.counters["files_seen"] = static_cast<double>(plan.filesSeen);
}
BENCHMARK(BM_LocatePlan)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

}  // namespace

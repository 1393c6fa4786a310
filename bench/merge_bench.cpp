// The merge: a 10 KB RTF letter with 25 markers parsed in test mode, anew
// each time, by the merge's route and by the literal sweeps;
// and a single-document merge of the sample firm with the store read
// (recordsets opened, table built, template parsed). Goals: the letter
// under 50 microseconds, the document under a millisecond.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "bench/bench_services.h"
#include "merge/cls_insert_fields_in_rtb.h"
#include "sample/sample_firm.h"
#include "services/host/module_state.h"
#include "services/runtime/dates.h"
#include "services/store/sqlite_database.h"
#include "tests/merge/literal_passes.h"

namespace {

namespace fs = std::filesystem;

// A letter of some 10 KB of RTF source: a header with its font and colour
// tables, paragraphs of text with control words and escapes, and 25 markers
// in the form RTF source writes them.
std::string rtfLetter() {
  const char* const markers[] = {"(Todays Date, mmmm d, yyyy)",
                                 "Contact Display Name",
                                 "Company Name",
                                 "Address",
                                 "City",
                                 "Province",
                                 "Postal Code",
                                 "Contact First Name",
                                 "(Year End Date, mmmm d yyyy)",
                                 "Business Number",
                                 "HST Number",
                                 "Your Company Name",
                                 "Your Address",
                                 "Your City",
                                 "Your Province",
                                 "Your Postal Code",
                                 "Your Office Number",
                                 "Contact Business Email",
                                 "Company Notes",
                                 "(Incorporation Date, d)",
                                 "Managing Accountant",
                                 "Supervising Partner",
                                 "Client ID",
                                 "Contact Last Name",
                                 "Office Number"};
  std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang4105{\\fonttbl{\\f0\\fswiss\\fcharset0 "
      "Arial;}{\\f1\\froman\\fcharset0 Times New Roman;}}\r\n{\\colortbl ;\\red0\\green0\\blue128;}"
      "\r\n\\viewkind4\\uc1\\pard\\f0\\fs20 ";
  const std::string paragraph =
      "\\par We thank you for choosing our firm for your accounting and tax needs this "
      "year. Our records show the following details, which we ask you to review carefully "
      "and to return with any corrections before the end of the month. \\b Please note\\b0  "
      "that the fees described in the enclosed schedule are estimates and may vary with the "
      "work the engagement requires; we will tell you before any change. Pour nos clients "
      "francophones, une version fran\\'e7aise est disponible sur demande.\r\n";
  for (const char* marker : markers) {
    if (rtf.size() < 9400) rtf += paragraph;
    rtf += "\\par\\cf1 Re: \\'ab" + std::string(marker) + "\\'bb\\cf0\r\n";
  }
  return rtf + "}";
}

// The sample firm in a temporary folder, with the module's services set.
struct SampleFirm {
  SampleFirm() {
    std::string pattern = (fs::temp_directory_path() / "qbbench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    const std::string path = (folder / "firm.db").string();
    qb::createDatabase(path);
    qb::fillSampleFirm(path, (folder / "files").string());
    store = std::make_shared<qb::SqliteDatabase>();
    store->open(path);
    qb::bench::installServices(store);
  }
  ~SampleFirm() {
    qb::resetModuleState();
    store.reset();
    fs::remove_all(folder);
  }
  fs::path folder;
  std::shared_ptr<qb::SqliteDatabase> store;
};

void setForLetter(qb::clsInsertFieldsInRTB& fields) {
  fields.setCompanyID(2);
  fields.setContactID(10);
  fields.setFirmID(1);
  fields.setListType(qb::listTypeCompanyContact);
}

void BM_ParseLetterInTestMode(benchmark::State& state) {
  SampleFirm firm;
  const std::string letter = rtfLetter();
  qb::clsInsertFieldsInRTB fields;
  setForLetter(fields);
  fields.setTestComment(true);
  fields.initializeDataRecordsetsForSingleDocMerge();
  for (auto _ : state) {
    fields.setTemplateText(letter);
    benchmark::DoNotOptimize(fields.parseRTBComment());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * letter.size()));
}
BENCHMARK(BM_ParseLetterInTestMode)->Unit(benchmark::kMicrosecond);

void BM_ParseLetterInTestModeLiterally(benchmark::State& state) {
  SampleFirm firm;
  const std::string letter = rtfLetter();
  qb::test::LiteralMerge fields;
  setForLetter(fields);
  fields.setTestComment(true);
  fields.initializeDataRecordsetsForSingleDocMerge();
  for (auto _ : state) {
    fields.setTemplateText(letter);
    benchmark::DoNotOptimize(fields.parseLiterally());
  }
}
BENCHMARK(BM_ParseLetterInTestModeLiterally)->Unit(benchmark::kMicrosecond);

// One document of the sample firm merged with its data, the recordsets
// opened and the field table built for it each time; by the merge's route
// and by the literal sweeps.
template <class Merge, std::string (Merge::*parse)()>
void mergeOneDocument(benchmark::State& state) {
  SampleFirm firm;
  const std::string letter = rtfLetter();
  for (auto _ : state) {
    Merge fields;
    setForLetter(fields);
    fields.initializeDataRecordsetsForSingleDocMerge();
    fields.setTemplateText(letter);
    benchmark::DoNotOptimize((fields.*parse)());
  }
}

void BM_MergeOneDocument(benchmark::State& state) {
  mergeOneDocument<qb::clsInsertFieldsInRTB, &qb::clsInsertFieldsInRTB::parseRTBComment>(state);
}
BENCHMARK(BM_MergeOneDocument)->Unit(benchmark::kMicrosecond);

void BM_MergeOneDocumentLiterally(benchmark::State& state) {
  mergeOneDocument<qb::test::LiteralMerge, &qb::test::LiteralMerge::parseLiterally>(state);
}
BENCHMARK(BM_MergeOneDocumentLiterally)->Unit(benchmark::kMicrosecond);

}  // namespace

// Every summary of the sample firm, read back by a real RTF reader, holds its
// person's name: the RTF that leaves the system is valid for every stored
// text.

#include <gtest/gtest.h>

#include <memory>

#include "render/mod_format_addresses.h"
#include "sample/sample_firm.h"
#include "services/errors/recording_error_object.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/store/sqlite_database.h"
#include "tests/render/rtf_reader.h"
#include "tests/support/temp_folder.h"

namespace qb::test {
namespace {

TEST(SampleSummaries, ARealReaderReadsEveryOneWithItsName) {
  if (!haveRtfReader()) GTEST_SKIP() << "unrtf is not installed";
  TempFolder folder;
  const std::string path = folder.file("firm.db");
  createDatabase(path);
  fillSampleFirm(path, folder.file("files"));
  auto store = std::make_shared<SqliteDatabase>();
  store->open(path);
  auto errors = std::make_shared<RecordingErrorObject>();
  resetModuleState();
  moduleState().databaseReference = store;
  moduleState().errorClass = errors;
  moduleState().localeReference = std::make_shared<FixedLocale>();

  RecordsetHandle people =
      store->openRecordset("SELECT Contacts.ContactID, Contacts.DisplayName FROM Contacts;",
                           adOpenKeyset, adLockReadOnly);
  int read = 0;
  for (store->moveFirstRecord(people); !store->isEndOfRecordset(people);
       store->moveNextRecord(people)) {
    int32_t contact = CLng(store->getFieldValue(people, Variant(std::string("ContactID"))));
    std::string name = toText(store->getFieldValue(people, Variant(std::string("DisplayName"))));
    int32_t noEmployee = -1;
    int32_t noCompany = -1;
    std::string rtf =
        modFormatAddresses::saveContactBusinessRTF(contact, noEmployee, noCompany, true);
    EXPECT_NE(rtfReaderText(rtf, folder.path().string()).find("Name: " + name + "\n"),
              std::string::npos)
        << "contact " << contact;
    ++read;
  }
  store->closeRecordset(people);
  EXPECT_EQ(read, 35);
  EXPECT_TRUE(errors->failures.empty());
  resetModuleState();
}

}  // namespace
}  // namespace qb::test

#pragma once
// The merge tests' support: a fresh client database as the module's store
// (or a store that is not connected), a fixed clock and locale, the merge
// class with its private operations in reach, and the field table and the
// list boxes rendered as short strings.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "merge/cls_insert_fields_in_rtb.h"
#include "services/controls/list_box.h"
#include "services/host/clock.h"
#include "services/host/module_state.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "tests/merge/literal_passes.h"
#include "tests/support/test_database.h"

namespace qb::test {

// The merge class with its private operations callable.
class MergeFields : public LiteralMerge {
 public:
  using clsInsertFieldsInRTB::convertFieldName;
  using clsInsertFieldsInRTB::convertToRTF;
  using clsInsertFieldsInRTB::getAbbreviatedProvince;
  using clsInsertFieldsInRTB::getContactAndSpouseName;
  using clsInsertFieldsInRTB::getDataFieldInfo;
  using clsInsertFieldsInRTB::getFullProvinceString;
  using clsInsertFieldsInRTB::getTimeDurationFieldValue;
  using clsInsertFieldsInRTB::getTodaysDate;
  using clsInsertFieldsInRTB::prepareTemplate;
  using clsInsertFieldsInRTB::replaceText;
  using clsInsertFieldsInRTB::sweepLiterally;
  using clsInsertFieldsInRTB::sweepMarkers;
  using clsInsertFieldsInRTB::testStr;
  using clsInsertFieldsInRTB::verifyFieldListIsPopulated;
  RecordsetHandle contactRecordset() const { return contactRecordset_; }
  RecordsetHandle companyRecordset() const { return companyRecordset_; }
  RecordsetHandle softwareRecordset() const { return softwareRecordset_; }
  RecordsetHandle taskRecordset() const { return taskRecordset_; }
  RecordsetHandle companyNotesRecordset() const { return companyNotesRecordset_; }
  // The value of a field by its display name, read as a marker without a
  // format reads it.
  std::string valueOf(const std::string& displayName) {
    return getMergeDataFromDisplayName(displayName);
  }
};

class MergeTest : public ::testing::Test {
 protected:
  MergeTest() { today(2026, 11, 23); }

  // Sets the host's clock to a day.
  static void today(int year, int month, int day) {
    moduleState().clock = std::make_shared<FixedClock>(DateSerial(year, month, day));
  }
  // Puts a store that is not connected in the module's place.
  static void disconnect() { moduleState().databaseReference = std::make_shared<SqliteDatabase>(); }
  void region(int32_t country, int32_t province) {
    db.locale().countryCode = country;
    db.locale().provinceCode = province;
  }

  // Builds the table for a list type (and use) with the list boxes given.
  static void build(clsInsertFieldsInRTB& fields, int32_t listType) {
    fields.setListType(listType);
    bool bypassListBox = false;
    bool clearListbox = true;
    fields.createDefaultFieldListStructure(bypassListBox, clearListbox);
  }

  // Every row of the table, in order: "index|name|display|source|type|sample|max"
  // with the further columns after another "|" when a row has them.
  static std::vector<std::string> rows(const clsInsertFieldsInRTB& fields) {
    FieldListClass table = fields.FieldList();
    std::vector<std::string> found;
    for (int32_t index = 1; index <= fields.fieldListCounter(); ++index) {
      if (!table.moveToFieldRow(index)) continue;
      std::string row = toText(table.getFieldRowIndex());
      for (int32_t column = 1; column <= 6; ++column)
        row += "|" + toText(table.getFieldColumn(column));
      if (!table.getFieldColumn(7).isEmpty()) row += "|" + toText(table.getFieldColumn(7));
      found.push_back(row);
    }
    return found;
  }

  // The first row of a display name as rows() writes it but without its
  // index, "" when there is none.
  static std::string rowNamed(const clsInsertFieldsInRTB& fields, const std::string& display) {
    for (const std::string& row : rows(fields)) {
      if (row.find("|" + display + "|") != std::string::npos) return row.substr(row.find('|') + 1);
    }
    return "";
  }
  // The index of the first row of a display name, -1 when there is none.
  static int32_t indexNamed(const clsInsertFieldsInRTB& fields, const std::string& display) {
    for (const std::string& row : rows(fields)) {
      if (row.find("|" + display + "|") != std::string::npos) return std::stoi(row);
    }
    return -1;
  }

  // How many rows come from a source.
  static int fromSource(const clsInsertFieldsInRTB& fields, const std::string& source) {
    FieldListClass table = fields.FieldList();
    int count = 0;
    for (int32_t index = 1; index <= fields.fieldListCounter(); ++index) {
      if (table.moveToFieldRow(index) && toText(table.getFieldColumn(3)) == source) ++count;
    }
    return count;
  }

  // The lines of a list box as "itemData text".
  static std::vector<std::string> lines(const ListBox& box) {
    std::vector<std::string> found;
    for (int32_t i = 0; i < box.ListCount(); ++i) {
      found.push_back(std::to_string(box.ItemData(i)) + " " + box.List(i));
    }
    return found;
  }

  TestDatabase db;
};

}  // namespace qb::test

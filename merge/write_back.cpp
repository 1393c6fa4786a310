// writeDataToField: an edited value stored in the column behind a merge
// field, through the recordsets a write-back merge (MergeFieldListUse 5)
// opened writable, each value committed as it is written. The rules of
// field_rules.h apply as they do to reading: a contact's inherited business
// detail goes to its company too, an abbreviated province to the full
// column, a coded column takes the code.

#include <charconv>
#include <cstdlib>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/field_rules.h"
#include "merge/merge_services.h"
#include "merge/merge_sql.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

// A number held in single precision, as text: its shortest decimal form.
std::string singleText(float value) {
  char digits[32];
  const auto written = std::to_chars(digits, digits + sizeof digits, value);
  return numberToText(std::strtod(std::string(digits, written.ptr).c_str(), nullptr));
}

// The store keeps a date or a time as the value itself and converts the text
// it is given: both pass through.
double toStoreDateValue(double date) { return date; }
double toStoreTimeValue(double time) { return time; }

}  // namespace

void clsInsertFieldsInRTB::writeByType(RecordsetHandle handle, const std::string& column,
                                       int16_t type, const Variant& value) {
  std::string text;
  switch (type) {
    case fieldTypeText:
      text = toText(value);
      break;
    case fieldTypeDate: {
      const double date = CDate(value);
      if (splitDate(date).year < 1900) return;
      text = CStr(Variant::date(toStoreDateValue(date)));
      break;
    }
    case fieldTypeTime:
      text = CStr(Variant::date(toStoreTimeValue(CDate(value))));
      break;
    case fieldTypeCurrency:
    case fieldTypeHours:
      text = singleText(CSng(value));
      break;
    case fieldTypeBoolean:
      text = CStr(Variant(CBool(value)));
      break;
    default:
      return;
  }
  merge::store().updateFieldValue(handle, column, text);
}

bool clsInsertFieldsInRTB::writeDataToField(const std::string& fieldName, const Variant& value) {
  Procedure proc(merge::traceName("writeDataToField"));
  const SourceInfo* source = nullptr;
  int16_t type = 0;
  proc.step([&] {
    if (!merge::store().isConnected() || isBlankValue(Variant(fieldName))) return;
    if (!verifyFieldListIsPopulated()) return;
    if (fieldList_.findFieldRow(fieldNameColumn, Variant(fieldName)) < 0) return;
    type = CInt(fieldList_.getFieldColumn(fieldTypeColumn));
    source = sourceNamed(toText(fieldList_.getFieldColumn(fieldSourceColumn)));
  });
  if (source == nullptr) return false;
  DatabaseReference& store = merge::store();
  std::string column = fieldName;
  auto asCode = [&] { return std::to_string(CInt(value)); };
  auto withoutAbbreviated = [&] { column = Replace(column, "Abbreviated", "", CompareMode::Text); };
  // The notes are opened writable on their first write.
  auto openNotes = [&](RecordsetHandle& handle, const char* sql, int32_t id) {
    if (!store.isRecordsetOpen(handle)) {
      handle = store.openRecordset(sql + std::to_string(id) + ";", adOpenKeyset, adLockOptimistic);
    }
  };
  switch (source->source) {
    case Source::Contact:
      proc.step([&] {
        if (!findInheritedCompany()) return;
        for (const merge_rules::InheritedField& field : merge_rules::kInheritedFields) {
          if (fieldName == field.fieldName) {
            store.updateFieldValue(companyRecordset_, field.companyColumn, toText(value));
          }
        }
      });
      proc.step([&] {
        // The couple's name is computed: it has no column.
        if (equalsText(fieldName, merge_rules::kContactAndSpouseName)) return;
        for (const char* name : merge_rules::kAbbreviatedProvinces) {
          if (equalsText(fieldName, name)) withoutAbbreviated();
        }
        writeByType(contactRecordset_, column, type, value);
      });
      break;
    case Source::ContactNotes:
      proc.step([&] {
        openNotes(contactNotesRecordset_, merge_sql::kContactNotes, contactID_);
        store.updateFieldValue(contactNotesRecordset_, column, toText(value));
      });
      break;
    case Source::Company:
      proc.step([&] {
        for (const char* name : merge_rules::kCompanyAbbreviatedProvinces) {
          if (!equalsText(fieldName, name)) continue;
          withoutAbbreviated();
          store.updateFieldValue(companyRecordset_, column, toText(value));
          return;
        }
        if (UCase(fieldName) == merge_rules::kCompanyTypeName) {
          store.updateFieldValue(companyRecordset_, column, asCode());
        } else {
          writeByType(companyRecordset_, column, type, value);
        }
      });
      break;
    case Source::CompanyNotes:
      proc.step([&] {
        openNotes(companyNotesRecordset_, merge_sql::kCompanyNotes, companyID_);
        store.updateFieldValue(companyNotesRecordset_, column, toText(value));
      });
      break;
    case Source::ClientInfo:
      proc.step([&] {
        // A coded column takes the code, while its read gives the code's text.
        for (const merge_rules::CodedColumn& coded : merge_rules::kCodedColumns) {
          if (fieldName != coded.fieldName) continue;
          store.updateFieldValue(clientInfoRecordset_, column, asCode());
          return;
        }
        writeByType(clientInfoRecordset_, column, type, value);
      });
      break;
    default:
      proc.step([&] { writeByType(this->*source->handle, column, type, value); });
      break;
  }
  return false;
}

}  // namespace qb

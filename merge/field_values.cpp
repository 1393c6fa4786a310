// getDataFieldFromRecordset: the value of the current row's field, read from
// the recordset of its source at the row found for the item. Most fields
// are their column; the rules of field_rules.h add a contact's inherited
// business details, the couple's name, abbreviated provinces, coded
// columns and durations. Every value read becomes text at once (a Null as
// "").

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/field_rules.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

template <size_t N>
bool isOneOf(const std::string& name, const std::array<const char*, N>& names) {
  for (const char* candidate : names) {
    if (equalsText(name, candidate)) return true;
  }
  return false;
}

}  // namespace

bool clsInsertFieldsInRTB::findInheritedCompany() {
  DatabaseReference& store = merge::store();
  const Variant inherits = store.getFieldValue(contactRecordset_, Variant("InheritCompanyInfo"));
  if (isBlankValue(inherits) || !CBool(inherits) || companyID_ < 0) return false;
  merge::yieldBeforeFind();
  return store.findRecord(companyRecordset_, "CompanyID", std::to_string(companyID_));
}

std::string clsInsertFieldsInRTB::getDataFieldFromRecordset(std::string& fieldName) {
  Procedure proc(merge::traceName("getDataFieldFromRecordset"));
  std::string result;
  proc.step([&] {
    DatabaseReference& store = merge::store();
    if (!store.isConnected()) return;
    const SourceInfo* source = sourceNamed(toText(fieldList_.getFieldColumn(fieldSourceColumn)));
    if (source == nullptr) return;
    auto column = [&](RecordsetHandle handle, const std::string& name) {
      return toText(store.getFieldValue(handle, Variant(name)));
    };
    // The value of a province column in its short form; the name loses
    // "Abbreviated".
    auto abbreviated = [&](RecordsetHandle handle) {
      fieldName = Replace(fieldName, "Abbreviated", "", CompareMode::Text);
      return getAbbreviatedProvince(column(handle, fieldName));
    };
    auto duration = [&](RecordsetHandle handle) {
      return getTimeDurationFieldValue(CDate(store.getFieldValue(handle, Variant("TimeFrom"))),
                                       CDate(store.getFieldValue(handle, Variant("TimeTo"))));
    };
    switch (source->source) {
      case Source::Contact: {
        if (findInheritedCompany()) {
          for (const merge_rules::InheritedField& field : merge_rules::kInheritedFields) {
            if (fieldName != field.fieldName) continue;
            // The address prefers the company's, the telephones the
            // contact's own.
            const std::string company = column(companyRecordset_, field.companyColumn);
            const std::string own = column(contactRecordset_, fieldName);
            const std::string& first = field.companyFirst ? company : own;
            result = isBlankValue(Variant(first)) ? (field.companyFirst ? own : company) : first;
            return;
          }
        }
        if (equalsText(fieldName, merge_rules::kContactAndSpouseName)) {
          result = getContactAndSpouseName(contactID_, false);
        } else if (isOneOf(fieldName, merge_rules::kAbbreviatedProvinces)) {
          result = abbreviated(contactRecordset_);
        } else {
          result = column(contactRecordset_, fieldName);
        }
        return;
      }
      case Source::Company:
        if (isOneOf(fieldName, merge_rules::kCompanyAbbreviatedProvinces)) {
          result = abbreviated(companyRecordset_);
        } else if (UCase(fieldName) == merge_rules::kCompanyTypeName) {
          result = modDatabaseFunctions::getCompanyTypeStringFromCompanyTypeNum(
              CInt(store.getFieldValue(clientInfoRecordset_, Variant(fieldName))));
        } else {
          result = column(companyRecordset_, fieldName);
        }
        return;
      case Source::ClientInfo:
        for (const merge_rules::CodedColumn& coded : merge_rules::kCodedColumns) {
          if (fieldName != coded.fieldName) continue;
          result = coded.text(coded.defaultCode);
          if (!isBlankValue(store.getFieldValue(clientInfoRecordset_, Variant(fieldName)))) {
            result =
                coded.text(CInt(store.getFieldValue(clientInfoRecordset_, Variant(fieldName))));
          }
          return;
        }
        result = column(clientInfoRecordset_, fieldName);
        return;
      case Source::Appointment:
      case Source::Task:
      case Source::Docket: {
        // A task's duration is read from the appointment's recordset, as it
        // always has been.
        const RecordsetHandle times =
            source->source == Source::Docket ? docketRecordset_ : appointmentRecordset_;
        result = equalsText(fieldName, merge_rules::kTimeDuration)
                     ? duration(times)
                     : column(this->*source->handle, fieldName);
        return;
      }
      default:
        result = column(this->*source->handle, fieldName);
        return;
    }
  });
  return isBlankValue(Variant(result)) ? std::string() : result;
}

}  // namespace qb

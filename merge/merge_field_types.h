#pragma once
// The numbers the merge engine and its hosts share: what a field list
// describes (ListType), what it is for (MergeFieldListUse), the type codes of
// a merge field, the columns of a field row and the fourteen date formats of
// the date markers.

#include <array>
#include <cstdint>

namespace qb {

// ListType: the client item the field list describes. Any other value, 0
// included, builds no client rows; the firm's rows come all the same.
constexpr int32_t listTypeCompany = 1;         // company, default contact, accounting, software
constexpr int32_t listTypeCompanyContact = 2;  // a company or a contact with its company's data
constexpr int32_t listTypeContact = 3;         // a contact by itself
constexpr int32_t listTypeAppointment = 5;     // an appointment, then all of type 1
constexpr int32_t listTypeTimeEntry = 6;       // a time entry, then all of type 1
constexpr int32_t listTypeTask = 8;            // a task, then all of type 1

// MergeFieldListUse: what the list is for. No other value has a meaning.
constexpr int32_t fieldListUseMerge = 1;       // template merges, read-only recordsets
constexpr int32_t fieldListUseBatchMerge = 2;  // a run over many clients: whole tables
constexpr int32_t fieldListUseMapping = 3;     // assigning a field: no headers, lines split
constexpr int32_t fieldListUseWriteBack = 5;   // one document whose values are written back

// The type code of a merge field (column 4 of its row).
constexpr int16_t fieldTypeText = 1;
constexpr int16_t fieldTypeDate = 2;      // formatted with the marker's date format
constexpr int16_t fieldTypeTime = 3;      // "h:Nn am/pm"
constexpr int16_t fieldTypeCurrency = 4;  // "$#,##0.00;$-#,##0.00"
constexpr int16_t fieldTypeBoolean = 5;   // "Yes" or "No"
constexpr int16_t fieldTypeHours = 6;     // hours, told as a duration text

// The columns of a merge field row in FieldList.
constexpr int32_t fieldNameColumn = 1;         // the column or alias in the source
constexpr int32_t fieldDisplayNameColumn = 2;  // the name between the marker's brackets
constexpr int32_t fieldSourceColumn = 3;       // the key of the recordset that holds it
constexpr int32_t fieldTypeColumn = 4;
constexpr int32_t fieldSampleColumn = 5;     // what a test merge writes
constexpr int32_t fieldMaxLengthColumn = 6;  // longest value, -1 for no limit

// The date formats of the date markers, indexed from 1 (mergeFormatTable[0]
// is format 1).
constexpr std::array<const char*, 14> mergeFormatTable = {
    "dddd, mmmm d yyyy",
    "dddd mmmm d yyyy",
    "mmmm d, yyyy",
    "mmmm d yyyy",
    "mmm d yyyy",
    "dd/mm/yy",
    "mm/dd/yy",
    "d",
    "dddd",
    "mmmm",
    "mmm",
    "yyyy",
    "mmmm yyyy",
    "mmmm d",
};

// Format n of the table (from 1); "" for a number outside 1 to 14.
constexpr const char* mergeFormat(int32_t n) {
  return n >= 1 && n <= static_cast<int32_t>(mergeFormatTable.size()) ? mergeFormatTable[n - 1]
                                                                      : "";
}

}  // namespace qb

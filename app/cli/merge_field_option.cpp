#include "app/cli/merge_field_option.h"

#include <stdexcept>

#include "services/runtime/conversions.h"
#include "services/runtime/variant.h"

namespace qb::cli {

std::string fieldNameOfOption(clsInsertFieldsInRTB& fields, const std::string& given,
                              const std::string& reader) {
  FieldListClass table = fields.FieldList();
  if (table.findFieldRow(fieldNameColumn, Variant(given)) >= 0) return given;
  const int32_t row = table.findFieldRow(fieldDisplayNameColumn, Variant(given));
  if (row < 0) {
    throw std::runtime_error("the field list of these items has no field named '" + given +
                             "' (quillbox fields lists them: field names in the second column, "
                             "display names in the third)");
  }
  std::string displayName = given;
  const std::string name = fields.getDBFieldNameFromDisplayFieldName(displayName);
  if (table.findFieldRow(fieldNameColumn, Variant(name)) != row) {
    throw std::runtime_error("'" + given + "' is the field " + name + ", but " + reader +
                             " takes that name for the first field of the list so named, " +
                             CStr(table.getFieldColumn(fieldDisplayNameColumn)) + " (" +
                             CStr(table.getFieldColumn(fieldSourceColumn)) +
                             "): with these items and list type it can't be reached by name");
  }
  return name;
}

}  // namespace qb::cli

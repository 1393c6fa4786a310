#pragma once
// The field a --field option names: a field name as `quillbox fields` shows
// it in its second column, or a display name from its third.

#include <string>

#include "merge/cls_insert_fields_in_rtb.h"

namespace qb::cli {

// The field name that a reader of fields' table (write-back, the lookup fill)
// is to take for the option's text: a field name as it stands, or a display
// name turned into its field's name. Throws std::runtime_error naming what to
// do when the table has no such field, or when the display name's field name
// belongs first to another field (the firm's "Your City" is City, as the
// company's City is): a reader by name takes the first field of a name, so
// that field can't be reached by name. reader names it in the message.
std::string fieldNameOfOption(clsInsertFieldsInRTB& fields, const std::string& given,
                              const std::string& reader);

}  // namespace qb::cli

#pragma once
// The SQL texts of clsLookupFields, as constant text with the numbers and
// keys in decimal. number is the customNumber of the column ("Custom" +
// number); family and kind are those of clsLookupFields. A text a family or
// kind has none of is "".

#include <cstdint>
#include <string>

namespace qb::lookup_sql {

// "Custom" + number.
std::string customColumn(int16_t number);
// The column of CustomFields that holds the family's custom types
// ("RemittanceCustomType", "PersonalTaxTaskCustomType", "ProjectCustomType"),
// without its number; "" for another family.
std::string typeColumn(int32_t family);
// "SELECT CustomFields.<typeColumn><number> FROM CustomFields;"
std::string customTypeSQL(const std::string& typeColumn, int16_t number);

// The rows of one client: kind 2 a company (family 1 by its ClientData id,
// family 3 by its company id), kind 1 a contact; family 2 only by contact,
// within the tax year. The client repeater and the bulk fill write through
// these.
std::string clientRowsSQL(int32_t family, int32_t kind, int16_t number, int32_t id,
                          int32_t taxYear);
// The schedule rows of a task type: total number 111 with a schedule number
// of 6 or more names the type by both.
std::string taskTypeRowsSQL(int16_t number, int32_t totalNum, int32_t scheduleNum);
// The projects of a project type.
std::string projectTypeRowsSQL(int16_t number, int32_t savedProjectID);
// Every row of the family (family 2: of the tax year), to be cleared.
std::string allRowsSQL(int32_t family, int16_t number, int32_t taxYear);
// The clients of the family's rows, one row per client.
std::string clientListSQL(int32_t family, int32_t taxYear);

}  // namespace qb::lookup_sql

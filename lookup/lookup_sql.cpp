#include "lookup/lookup_sql.h"

#include "lookup/cls_lookup_fields.h"

namespace qb::lookup_sql {

namespace {

using C = clsLookupFields;

// A family's table and the columns that name its clients.
struct Family {
  const char* table;
  const char* typeColumn;
  const char* companyColumn;  // nullptr: the family has no company rows
};

const Family* familyOf(int32_t family) {
  static const Family kFamilies[] = {
      {"Schedule", "RemittanceCustomType", "ClientNum"},
      {"PersonalTaxStatus", "PersonalTaxTaskCustomType", nullptr},
      {"CompanyProjects", "ProjectCustomType", "CompanyIDNum"},
  };
  if (family < C::familySchedule || family > C::familyProjects) return nullptr;
  return &kFamilies[family - 1];
}

}  // namespace

std::string customColumn(int16_t number) { return "Custom" + std::to_string(number); }

std::string typeColumn(int32_t family) {
  const Family* f = familyOf(family);
  return f == nullptr ? "" : f->typeColumn;
}

std::string customTypeSQL(const std::string& typeColumn, int16_t number) {
  return "SELECT CustomFields." + typeColumn + std::to_string(number) + " FROM CustomFields;";
}

std::string clientRowsSQL(int32_t family, int32_t kind, int16_t number, int32_t id,
                          int32_t taxYear) {
  const Family* f = familyOf(family);
  if (f == nullptr) return "";
  const std::string table = f->table;
  const std::string custom = table + "." + customColumn(number);
  if (family == C::familyPersonalTax) {
    if (kind != C::clientContact) return "";
    return "SELECT PersonalTaxStatus.ContactNum, PersonalTaxStatus.TaxYear, " + custom +
           " FROM PersonalTaxStatus WHERE TaxYear = " + std::to_string(taxYear) +
           " AND PersonalTaxStatus.ContactNum = " + std::to_string(id) + ";";
  }
  const char* keyColumn = kind == C::clientCompany   ? f->companyColumn
                          : kind == C::clientContact ? "ContactIDNum"
                                                     : nullptr;
  if (keyColumn == nullptr) return "";
  const std::string key = table + "." + keyColumn;
  return "SELECT " + custom + ", " + key + " FROM " + table + " WHERE " + key + " = " +
         std::to_string(id) + ";";
}

std::string taskTypeRowsSQL(int16_t number, int32_t totalNum, int32_t scheduleNum) {
  const std::string custom = "SELECT Schedule." + customColumn(number);
  if (totalNum == 111 && scheduleNum >= 6) {
    return custom +
           ", Schedule.ScheduleNum, Schedule.TotalNum FROM Schedule WHERE Schedule.TotalNum = " +
           std::to_string(totalNum) + " AND Schedule.ScheduleNum = " + std::to_string(scheduleNum) +
           ";";
  }
  return custom +
         ", Schedule.TotalNum FROM Schedule WHERE Schedule.TotalNum = " + std::to_string(totalNum) +
         ";";
}

std::string projectTypeRowsSQL(int16_t number, int32_t savedProjectID) {
  return "SELECT CompanyProjects." + customColumn(number) +
         ", CompanyProjects.SavedProjectIDNum FROM CompanyProjects WHERE "
         "CompanyProjects.SavedProjectIDNum = " +
         std::to_string(savedProjectID) + ";";
}

std::string allRowsSQL(int32_t family, int16_t number, int32_t taxYear) {
  const Family* f = familyOf(family);
  if (f == nullptr) return "";
  if (family == C::familyPersonalTax) {
    return "SELECT PersonalTaxStatus.TaxYear, PersonalTaxStatus." + customColumn(number) +
           " FROM PersonalTaxStatus WHERE TaxYear = " + std::to_string(taxYear) + ";";
  }
  return "SELECT " + std::string(f->table) + "." + customColumn(number) + " FROM " + f->table + ";";
}

std::string clientListSQL(int32_t family, int32_t taxYear) {
  switch (family) {
    case C::familySchedule:
      return "SELECT Schedule.ClientNum, Schedule.ContactIDNum From Schedule GROUP BY "
             "Schedule.ClientNum, Schedule.ContactIDNum ORDER BY Schedule.ClientNum, "
             "Schedule.ContactIDNum;";
    case C::familyPersonalTax:
      return "SELECT PersonalTaxStatus.ContactNum, PersonalTaxStatus.TaxYear FROM "
             "PersonalTaxStatus WHERE TaxYear = " +
             std::to_string(taxYear) + ";";
    case C::familyProjects:
      return "SELECT CompanyProjects.CompanyIDNum, CompanyProjects.ContactIDNum From "
             "CompanyProjects GROUP BY CompanyProjects.CompanyIDNum, "
             "CompanyProjects.ContactIDNum ORDER BY CompanyProjects.CompanyIDNum, "
             "CompanyProjects.ContactIDNum;";
    default:
      return "";
  }
}

}  // namespace qb::lookup_sql

#include "app/cli/id_options.h"

#include <array>

#include "services/store/database_reference.h"

namespace qb::cli {

namespace {

// The options that hold the same kind of id in every command.
const std::array<IdOption, 12> kIdOptions = {{
    {"company", "Companies", "CompanyID", "company"},
    {"contact", "Contacts", "ContactID", "contact"},
    {"related", "Contacts", "ContactID", "contact"},
    {"employee", "AccountantEmployeeInfo", "ContactID", "firm employee"},
    {"user", "AccountantEmployeeInfo", "ContactID", "user"},
    {"firm", "AccountantFirmInfo", "CompanyID", "firm"},
    {"client-data", "ClientData", "ClientDataID", "client"},
    {"category", "DocCategories", "DocCategoryID", "document category"},
    {"document", "Documents", "DocumentID", "document link"},
    {"appointment", "Appointments", "AppointmentID", "appointment"},
    {"task", "Tasks", "TaskID", "task"},
    {"docket", "Dockets", "DocketID", "docket"},
}};

bool rowExists(DatabaseReference& store, const IdOption& option, int32_t id) {
  const std::string column = option.table + "." + option.keyColumn;
  RecordsetHandle rows =
      store.openRecordset("SELECT " + column + " FROM " + option.table + " WHERE " + column + "=" +
                              std::to_string(id) + ";",
                          adOpenKeyset, adLockReadOnly);
  bool found = store.moveFirstRecord(rows);
  store.closeRecordset(rows);
  return found;
}

}  // namespace

const IdOption* idOptionFor(const Command& command, const std::string& option) {
  for (const IdOption& own : command.ids) {
    if (own.option == option) return own.table.empty() ? nullptr : &own;
  }
  for (const IdOption& shared : kIdOptions) {
    if (shared.option == option) return &shared;
  }
  return nullptr;
}

void checkIdFormats(const Command& command, const Arguments& args) {
  for (const auto& [name, value] : args.values_) {
    if (idOptionFor(command, name) != nullptr) args.id(name, -1);
  }
}

void checkIdsNameRows(const Command& command, const Arguments& args, DatabaseReference& store) {
  for (const auto& [name, value] : args.values_) {
    const IdOption* option = idOptionFor(command, name);
    if (option == nullptr) continue;
    int32_t id = args.id(name, -1);
    if (id >= 0 && !rowExists(store, *option, id)) {
      throw UsageError("--" + name + " " + value + " names no " + option->noun +
                       " in the database");
    }
  }
}

}  // namespace qb::cli

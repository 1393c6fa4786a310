#include "services/quillbox/library_store.h"

#include <cstdio>

#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/host/working_folder.h"
#include "services/quillbox/doc_quillbox_references_class.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"

namespace qb::quillboxLibrary {

DatabaseReference& database() {
  const auto& references = moduleState().references;
  if (references && references->databaseReference()) return *references->databaseReference();
  if (!moduleState().databaseReference)
    throw RuntimeError(err::kObjectRequired, "The document library has no store to work on.",
                       "nvQuillboxLib");
  return *moduleState().databaseReference;
}

LocaleReference* locale() {
  const auto& references = moduleState().references;
  if (references && references->localeReference()) return references->localeReference().get();
  return moduleState().localeReference.get();
}

WorkingFolderReference* workingFolder() {
  const auto& references = moduleState().references;
  if (references && references->workingFolderReference())
    return references->workingFolderReference().get();
  return moduleState().workingFolderReference.get();
}

std::string keyedSql(const std::string& text, int32_t key) {
  return text + std::to_string(key) + ";";
}

std::string keyText(int32_t key) { return key < 0 ? "" : std::to_string(key); }

std::string dateText(double serial) {
  DateParts p = splitDate(serial);
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", p.year, p.month, p.day, p.hour,
                p.minute, p.second);
  return text;
}

Recordset::Recordset(DatabaseReference& db, const std::string& sql, int32_t lockType)
    : db_(db), handle_(db.openRecordset(sql, adOpenKeyset, lockType, true, "", true)) {}

Recordset::~Recordset() {
  if (!open_) return;
  try {
    db_.closeRecordset(handle_);
  } catch (const RuntimeError&) {
    // Already leaving on a failure: the first report is the one that counts.
  }
}

void Recordset::close() {
  if (!open_) return;
  open_ = false;
  db_.closeRecordset(handle_);
}

namespace {
Variant value(DatabaseReference& db, RecordsetHandle handle, const char* field) {
  return db.getFieldValue(handle, Variant(field));
}
}  // namespace

// Blank columns are tested first and read again for the conversion.
int32_t readId(DatabaseReference& db, RecordsetHandle handle, const char* field) {
  if (isBlankValue(value(db, handle, field))) return -1;
  return CLng(value(db, handle, field));
}

int32_t readNumber(DatabaseReference& db, RecordsetHandle handle, const char* field) {
  if (isBlankValue(value(db, handle, field))) return 0;
  return CLng(value(db, handle, field));
}

std::string readText(DatabaseReference& db, RecordsetHandle handle, const char* field) {
  return toText(value(db, handle, field));
}

Variant readDate(DatabaseReference& db, RecordsetHandle handle, const char* field) {
  if (isBlankValue(value(db, handle, field))) return Variant::null();
  return Variant::date(CDate(value(db, handle, field)));
}

}  // namespace qb::quillboxLibrary

#include "data/query_shape.h"

#include "services/host/module_state.h"
#include "services/runtime/conversions.h"

namespace qb {

QueryShape::QueryShape(Procedure& proc, std::function<void()> onFailure)
    : proc_(proc), onFailure_(std::move(onFailure)), store_(moduleState().databaseReference) {}

bool QueryShape::step(const std::function<void()>& body) {
  bool skipped = proc_.leaving();
  bool ran = proc_.step(body);
  if (!ran && !skipped && onFailure_) onFailure_();
  return ran;
}

DatabaseReference& QueryShape::store() {
  if (!store_) {
    throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
  }
  return *store_;
}

bool QueryShape::connected() {
  bool result = false;
  step([&] { result = store().isConnected(); });
  return result;
}

void QueryShape::open(const std::string& sqlText, int32_t lockType) {
  step([&] { handle_ = store().openRecordset(sqlText, adOpenKeyset, lockType, true, "", true); });
}

bool QueryShape::moveFirst() {
  bool result = false;
  step([&] { result = store().moveFirstRecord(handle_); });
  return result;
}

void QueryShape::close() {
  step([&] { store().closeRecordset(handle_); });
}

bool QueryShape::readFirstRow(const std::string& sqlText, const std::function<void()>& read,
                              int32_t lockType) {
  open(sqlText, lockType);
  bool found = moveFirst();
  if (found) step(read);
  close();
  return found;
}

Variant QueryShape::field(const std::string& name) {
  return store().getFieldValue(handle_, Variant(name));
}

bool QueryShape::isBlank(const std::string& name) { return isBlankValue(field(name)); }

int32_t QueryShape::idOrDefault(const std::string& name, int32_t fallback) {
  if (isBlank(name)) return fallback;
  return CLng(field(name));
}

}  // namespace qb

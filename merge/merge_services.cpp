#include "merge/merge_services.h"

#include "services/controls/platform.h"
#include "services/errors/runtime_error.h"
#include "services/host/clock.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"
#include "services/runtime/dates.h"
#include "services/store/database_reference.h"

namespace qb::merge {

namespace {

template <class Service>
Service& required(const std::shared_ptr<Service>& service) {
  if (!service) {
    throw RuntimeError(err::kObjectRequired, "Object variable or With block variable not set");
  }
  return *service;
}

}  // namespace

std::string traceName(const char* procedure) {
  return std::string("Orvanta.exe-clsInsertFieldsInRTB-") + procedure;
}

LocaleReference& locale() { return required(moduleState().localeReference); }

DatabaseReference& store() { return required(moduleState().databaseReference); }

void yieldBeforeFind() {
  for (int turn = 0; turn < 8; ++turn) DoEvents();
}

bool harmonisedTaxInForce() { return hostToday() >= DateSerial(2010, 7, 1); }

}  // namespace qb::merge

// clsLookupFields: the object's start and the id properties, whose setters
// keep the kind of client and the company's two ids in step.

#include "data/mod_database_functions.h"
#include "lookup/cls_lookup_fields.h"
#include "lookup/lookup_services.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/host/module_state.h"

namespace qb {

clsLookupFields::clsLookupFields() {
  Procedure proc(lookup::traceName("Class_Initialize"), Procedure::Mode::Resume);
  proc.step([&] {
    if (LocaleReference* locale = moduleState().localeReference.get()) {
      personalTaxYear_ = locale->getCurrentTaxYear();
    }
  });
}

void clsLookupFields::setClientIDNum(int32_t value) {
  setCompany(value, value >= 0 ? modDatabaseFunctions::getCompanyIDFromClientDataID(value) : -1,
             value >= 0);
}

void clsLookupFields::setCompanyIDNum(int32_t value) {
  setCompany(value >= 0 ? modDatabaseFunctions::getClientDataIDFromCompanyID(value) : -1, value,
             value >= 0);
}

void clsLookupFields::setCompany(int32_t clientID, int32_t companyID, bool given) {
  clientIDNum_ = given ? clientID : -1;
  companyIDNum_ = given ? companyID : -1;
  if (given) {
    clientType_ = clientCompany;
  } else if (clientType_ == clientCompany) {
    clientType_ = clientNone;
  }
}

void clsLookupFields::setContactIDNum(int32_t value) {
  if (value >= 0) {
    contactIDNum_ = value;
    clientType_ = clientContact;
    return;
  }
  contactIDNum_ = -1;
  if (clientType_ == clientContact) clientType_ = clientNone;
}

}  // namespace qb

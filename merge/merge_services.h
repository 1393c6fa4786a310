#pragma once
// What the parts of the merge engine share: the module's service objects as
// the engine reaches them, its trace names, and the date rule of the
// harmonised sales tax.

#include <string>

namespace qb {

class DatabaseReference;
class LocaleReference;

namespace merge {

// "Orvanta.exe-clsInsertFieldsInRTB-" + procedure.
std::string traceName(const char* procedure);

// The module's locale and store. Without one, the call fails as any call on
// a missing service object does (object required).
LocaleReference& locale();
DatabaseReference& store();

// Gives the event pump the eight turns the merge gives it before every
// findRecord, so that the host's window stays alive during a merge.
void yieldBeforeFind();

// True when today (the host's clock) is 1 July 2010 or later: from that day
// British Columbia and Ontario charge the harmonised tax.
bool harmonisedTaxInForce();

}  // namespace merge
}  // namespace qb

#pragma once
// What the files of clsLookupFields share: their trace names and the
// module's store as they reach it.

#include <cstdint>
#include <string>

#include "services/store/database_reference.h"

namespace qb {

class Procedure;

namespace lookup {

// "Orvanta.exe-clsLookupFieldTasks-" + procedure.
std::string traceName(const char* procedure);

// The opening step of a run: when the module's store can take queries,
// opens the SQL (keyset, the lock given) into handle and returns the store;
// otherwise the procedure leaves and the result is nullptr. No store at all
// is an object-required failure.
DatabaseReference* openWhenConnected(Procedure& proc, const std::string& sql, int32_t lockType,
                                     RecordsetHandle& handle);

}  // namespace lookup
}  // namespace qb

#pragma once
// What the files of clsLookupFields share: their trace names and the
// module's store as they reach it.

#include <cstdint>
#include <string>

#include "merge/cls_insert_fields_in_rtb.h"
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

// Sets merge up as the bulk fill reads a lookup's field: the lookup list use,
// list type 2, plain text, no name swap, its field table built.
void prepareLookupMerge(clsInsertFieldsInRTB& merge);

}  // namespace lookup
}  // namespace qb

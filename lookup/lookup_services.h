#pragma once
// What the files of clsLookupFields share: their trace names and the
// module's store as they reach it.

#include <memory>
#include <string>

namespace qb {

class DatabaseReference;
class Procedure;

namespace lookup {

// "Orvanta.exe-clsLookupFieldTasks-" + procedure.
std::string traceName(const char* procedure);

// The module's store when it can take queries; nullptr when it can't. No
// store at all is an object-required failure, and the procedure leaves.
DatabaseReference* connectedStore(Procedure& proc);

}  // namespace lookup
}  // namespace qb

#pragma once
// The id options of the quillbox tool: which value options name a row of the
// database, and the checks the host makes on them before a command runs (see
// command.h).

#include <string>

#include "app/cli/command.h"

namespace qb {
class DatabaseReference;
}

namespace qb::cli {

// The id option of that name for the command: its own declaration first,
// then the table of id options; nullptr when the option is no id for it.
const IdOption* idOptionFor(const Command& command, const std::string& option);

// Every id option given must be a whole number of 32 bits; throws UsageError
// naming the first one that is not.
void checkIdFormats(const Command& command, const Arguments& args);

// Every id option given with a value of 0 or more must name a row of its
// table; throws UsageError naming the first that names none. A failure of the
// store passes on.
void checkIdsNameRows(const Command& command, const Arguments& args, DatabaseReference& store);

}  // namespace qb::cli

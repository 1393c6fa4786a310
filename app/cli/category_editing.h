#pragma once
// What the category commands share: the client a category or a link belongs
// to, the rule that a move stays within one client, and the category editor
// filled from the command's options.

#include <cstdint>
#include <string>

#include "app/cli/command.h"

namespace qb {
class frmEditDocCategory;
}

namespace qb::cli {

// A client: one id 0 or more, the other -1.
struct ClientIds {
  int32_t company = -1;
  int32_t contact = -1;
  bool operator==(const ClientIds&) const = default;
};

// The client of the category that the option names (--category, --to,
// --parent); a UsageError naming the flag when there is no such category.
ClientIds categoryClient(const Arguments& args, const std::string& option);
// The client of the document link --document names, and its category.
ClientIds documentClient(const Arguments& args, int32_t& categoryID);
// A UsageError unless the category that option names belongs to client.
void requireSameClient(const Arguments& args, const std::string& option, const ClientIds& client);

// Types the options given (--name, --description, --folder) into the editor
// and clicks OK; a name the editor refuses leaves it by Cancel. The
// description's line breaks become CR LF, as the system writes them.
void fillEditor(frmEditDocCategory& editor, const Arguments& args);
// Tells on standard error, as a note, when --folder names no folder: the
// category keeps it as it stands and shows its files once it is there.
void noteMissingFolder(Context& context);

}  // namespace qb::cli

#pragma once
// What the links commands share: the client they work on (--company N,
// --contact N or --all, the default) and the checks on it.

#include <functional>
#include <vector>

#include "app/cli/command.h"
#include "app/cli/session.h"
#include "links/link_record.h"
#include "links/link_repoint.h"

namespace qb::cli {

// The scope of the client options; throws UsageError for more than one of
// them or a negative id.
links::LinkScope linkScope(const Arguments& args);

// Refuses (UsageError) a company or contact that names no row, once the
// session's store is open: "--company 77 names no company in the database".
void requireClient(const links::LinkScope& scope);

// The end of a command that writes only with --apply: without it, writes the
// preview (write with no outcomes); with it, applies the plan under a
// progress bar and writes how each link went. The session's exit status.
int previewOrApply(
    Context& context, Session& session,
    const std::function<std::vector<links::RepointOutcome>(const links::Progress&)>& apply,
    const std::function<void(const std::vector<links::RepointOutcome>*)>& write);

// For the commands that write only with --apply: while it lives, a run
// without --apply is a read, so its session opens the database read-only (a
// preview never changes the file, and runs for a user who may not write it).
// Made before the command's Session.
class ReadsUnlessApplied {
 public:
  explicit ReadsUnlessApplied(Context& context);
  ~ReadsUnlessApplied() { context_.command = original_; }
  ReadsUnlessApplied(const ReadsUnlessApplied&) = delete;
  ReadsUnlessApplied& operator=(const ReadsUnlessApplied&) = delete;

 private:
  Context& context_;
  const Command* original_;
  Command preview_;
};

}  // namespace qb::cli

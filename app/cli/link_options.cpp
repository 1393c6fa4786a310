#include "app/cli/link_options.h"

#include "app/cli/progress_bar.h"
#include "data/mod_database_functions.h"

namespace qb::cli {

links::LinkScope linkScope(const Arguments& args) {
  if (args.has("company") + args.has("contact") + args.has("all") > 1)
    throw UsageError("give one of --company N, --contact N and --all");
  const int32_t company = args.id("company", -1);
  const int32_t contact = args.id("contact", -1);
  if (args.has("company") && company < 0) throw UsageError("--company takes an id of 0 or more");
  if (args.has("contact") && contact < 0) throw UsageError("--contact takes an id of 0 or more");
  if (company >= 0) return links::LinkScope::company(company);
  if (contact >= 0) return links::LinkScope::contact(contact);
  return links::LinkScope::all();
}

void requireClient(const links::LinkScope& scope) {
  if (scope.companyID >= 0 &&
      !modDatabaseFunctions::validCompanyID(std::to_string(scope.companyID)))
    throw UsageError("--company " + std::to_string(scope.companyID) +
                     " names no company in the database");
  if (scope.contactID >= 0 &&
      !modDatabaseFunctions::validContactID(std::to_string(scope.contactID)))
    throw UsageError("--contact " + std::to_string(scope.contactID) +
                     " names no contact in the database");
}

int previewOrApply(
    Context& context, Session& session,
    const std::function<std::vector<links::RepointOutcome>(const links::Progress&)>& apply,
    const std::function<void(const std::vector<links::RepointOutcome>*)>& write) {
  if (!context.args.has("apply")) {
    write(nullptr);
    return session.exitStatus();
  }
  std::vector<links::RepointOutcome> outcomes;
  {
    ProgressBar bar(context.err, "Relinking");
    outcomes = apply(bar.callback());
  }
  write(&outcomes);
  return session.exitStatus();
}

ReadsUnlessApplied::ReadsUnlessApplied(Context& context)
    : context_(context), original_(context.command) {
  if (original_ == nullptr || context.args.has("apply")) return;
  preview_ = *original_;
  preview_.writes = false;
  context.command = &preview_;
}

}  // namespace qb::cli

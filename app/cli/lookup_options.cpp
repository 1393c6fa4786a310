#include "app/cli/lookup_options.h"

#include <limits>

#include "app/cli/progress_bar.h"

namespace qb::cli {

std::unique_ptr<clsLookupFields> lookupFromOptions(const Arguments& args) {
  const int32_t family = args.number("family", -1);
  if (!args.has("family")) throw UsageError("give --family 1, 2 or 3");
  if (family < clsLookupFields::familySchedule || family > clsLookupFields::familyProjects) {
    throw UsageError(
        "--family takes 1 (task schedule rows), 2 (personal tax rows) or 3 (company "
        "projects), not " +
        args.value("family"));
  }
  if (!args.has("custom")) throw UsageError("give --custom N, the number of the custom column");
  const int32_t custom = args.number("custom", 0);
  if (custom < std::numeric_limits<int16_t>::min() ||
      custom > std::numeric_limits<int16_t>::max()) {
    throw UsageError("--custom " + args.value("custom") + " is no column number");
  }
  auto fields = std::make_unique<clsLookupFields>();
  fields->setLookUpFieldsType(family);
  fields->setCustomNumber(static_cast<int16_t>(custom));
  if (args.has("tax-year")) fields->setPersonalTaxYear(args.number("tax-year", 0));
  return fields;
}

struct LookupProgress::State {
  explicit State(Context& context, const std::string& label) : bar(context.err, label) {}
  ProgressBar bar;
  size_t total = 0;
  bool started = false;
};

LookupProgress::LookupProgress(Context& context, clsLookupFields& fields, Run run)
    : state_(std::make_unique<State>(context,
                                     (run == Run::Remove ? "Clearing Custom" : "Filling Custom") +
                                         std::to_string(fields.customNumber()))) {
  State& state = *state_;
  auto start = [&state] { state.started = true; };
  auto max = [&state](int32_t& count) { state.total = count > 0 ? count : 0; };
  auto inc = [&state](int32_t& counter) {
    state.bar.update(counter > 0 ? counter : 0, state.total);
  };
  auto end = [&state] { state.bar.clear(); };
  switch (run) {
    case Run::ClientRepeater:
      fields.startPopulateClientRepeaterFields = start;
      fields.maxPopulateClientRepeaterFields = max;
      fields.incPopulateClientRepeaterFields = inc;
      fields.endPopulateClientRepeaterFields = end;
      break;
    case Run::TypeRepeater:
      fields.startPopulateTaskTypeRepeaterFields = start;
      fields.maxPopulateTaskTypeRepeaterFields = max;
      fields.incPopulateTaskTypeRepeaterFields = inc;
      fields.endPopulateTaskTypeRepeaterFields = end;
      break;
    case Run::Remove:
      fields.startRemoveLookupFieldValues = start;
      fields.maxRemoveLookupFieldValues = max;
      fields.incRemoveLookupFieldValues = inc;
      fields.endRemoveLookupFieldValues = end;
      break;
    case Run::Lookup:
      fields.startPopulateLookupFields = start;
      fields.maxPopulateLookupFields = max;
      fields.incPopulateLookupFields = inc;
      fields.endPopulateLookupFields = end;
      break;
  }
}

LookupProgress::~LookupProgress() = default;

bool LookupProgress::started() const { return state_->started; }

std::string lookupHelp(const std::string& usage, const std::string& what,
                       const std::string& options) {
  return "Usage: quillbox " + usage + "\n\n" + what +
         "\n\n  --db FILE          the client database\n" + kFamilyHelp + options;
}

}  // namespace qb::cli

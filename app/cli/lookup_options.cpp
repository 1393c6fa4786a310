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
  auto wire = [&](Event<void()>& onStart, Event<void(int32_t&)>& onMax,
                  Event<void(int32_t&)>& onInc, Event<void()>& onEnd) {
    onStart = start;
    onMax = max;
    onInc = inc;
    onEnd = end;
  };
  switch (run) {
    case Run::ClientRepeater:
      wire(fields.startPopulateClientRepeaterFields, fields.maxPopulateClientRepeaterFields,
           fields.incPopulateClientRepeaterFields, fields.endPopulateClientRepeaterFields);
      break;
    case Run::TypeRepeater:
      wire(fields.startPopulateTaskTypeRepeaterFields, fields.maxPopulateTaskTypeRepeaterFields,
           fields.incPopulateTaskTypeRepeaterFields, fields.endPopulateTaskTypeRepeaterFields);
      break;
    case Run::Remove:
      wire(fields.startRemoveLookupFieldValues, fields.maxRemoveLookupFieldValues,
           fields.incRemoveLookupFieldValues, fields.endRemoveLookupFieldValues);
      break;
    case Run::Lookup:
      wire(fields.startPopulateLookupFields, fields.maxPopulateLookupFields,
           fields.incPopulateLookupFields, fields.endPopulateLookupFields);
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

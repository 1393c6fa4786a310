#pragma once
// The link-health reports as the quillbox tool prints them.
//
// The check, in one of three forms:
//   text  one line a link, fields separated by tabs: state, document id,
//         client, category path, link name, path, and the computer the link
//         was added on; then the summary line (stateSummary).
//   csv   a header line, then one record a link: state, id, client_kind
//         ("company", "contact" or ""), client_id, client, category, name,
//         path, computer. Lines end in CR LF.
//   json  {"links": [{"state", "id", "client": {"kind", "id", "name"},
//         "category", "name", "path", "computer"}, ...], "summary": {"links":
//         total, "<state>": count, ...}}.
// In the text form a tab, carriage return, line feed or backslash within a
// field is written as \t, \r, \n or \\, so each link stays one line.
//
// Relinking and locating are written as text only: one line a link, the
// outcome first, then a summary line.

#include <ostream>
#include <string>
#include <vector>

#include "links/link_check.h"
#include "links/locate.h"
#include "links/relink.h"

namespace qb::links {

enum class ReportFormat { text, csv, json };

// The format of a name ("text", "csv", "json"); false for another.
bool reportFormatNamed(const std::string& name, ReportFormat& format);

// The links listed (all those checked, or a part of them) and the counts of
// all those checked for the summary.
void writeCheckReport(std::ostream& out, const std::vector<CheckedLink>& listed,
                      const StateCounts& counts, ReportFormat format);

// The plan as a preview (outcomes null): "found" or "not-found", id, client,
// link name, old path, new path; or, once applied, each row's outcome.
void writeRelinkReport(std::ostream& out, const RelinkPlan& plan,
                       const std::vector<RepointOutcome>* outcomes);

// The plan as a preview: "found" (one match), "several" (a line for each
// match) or "none", then id, client, link name, old path, match; once
// applied, the outcome of each row with one match instead of "found".
void writeLocateReport(std::ostream& out, const LocatePlan& plan,
                       const std::vector<RepointOutcome>* outcomes);

}  // namespace qb::links

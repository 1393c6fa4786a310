#include "links/link_report.h"

#include "services/util/structured_text.h"

namespace qb::links {

namespace {

// A field of a text line: the characters that would break the line escaped.
std::string textField(const std::string& text) {
  if (text.find_first_of("\t\r\n\\") == std::string::npos) return text;
  std::string out;
  for (char c : text) {
    switch (c) {
      case '\t':
        out += "\\t";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\\':
        out += "\\\\";
        break;
      default:
        out += c;
    }
  }
  return out;
}

const char* clientKind(const LinkRecord& link) {
  if (link.isCompany()) return "company";
  return link.hasClient() ? "contact" : "";
}

int32_t clientID(const LinkRecord& link) {
  return link.isCompany() ? link.companyID : link.contactID;
}

// The fields every text line shares after its outcome: id, client, name.
void writeLinkFields(std::ostream& out, const LinkRecord& link) {
  out << '\t' << link.documentID << '\t' << textField(link.clientName) << '\t'
      << textField(link.name);
}

void writeCheckText(std::ostream& out, const std::vector<CheckedLink>& checked,
                    const StateCounts& counts) {
  for (const CheckedLink& row : checked) {
    const LinkRecord& link = row.link;
    out << linkStateName(row.state) << '\t' << link.documentID << '\t' << textField(link.clientName)
        << '\t' << textField(link.categoryPath) << '\t' << textField(link.name) << '\t'
        << textField(link.path) << '\t' << textField(link.computer) << '\n';
  }
  out << stateSummary(counts) << '\n';
}

void writeCheckCsv(std::ostream& out, const std::vector<CheckedLink>& checked) {
  out << "state,id,client_kind,client_id,client,category,name,path,computer\r\n";
  for (const CheckedLink& row : checked) {
    const LinkRecord& link = row.link;
    out << linkStateName(row.state) << ',' << link.documentID << ',' << clientKind(link) << ','
        << clientID(link) << ',' << csvField(link.clientName) << ',' << csvField(link.categoryPath)
        << ',' << csvField(link.name) << ',' << csvField(link.path) << ','
        << csvField(link.computer) << "\r\n";
  }
}

void writeCheckJson(std::ostream& out, const std::vector<CheckedLink>& checked,
                    const StateCounts& counts) {
  out << "{\"links\": [";
  for (size_t i = 0; i < checked.size(); ++i) {
    const LinkRecord& link = checked[i].link;
    out << (i == 0 ? "\n  " : ",\n  ")
        << "{\"state\": " << jsonString(linkStateName(checked[i].state))
        << ", \"id\": " << link.documentID
        << ", \"client\": {\"kind\": " << jsonString(clientKind(link))
        << ", \"id\": " << clientID(link) << ", \"name\": " << jsonString(link.clientName)
        << "}, \"category\": " << jsonString(link.categoryPath)
        << ", \"name\": " << jsonString(link.name) << ", \"path\": " << jsonString(link.path)
        << ", \"computer\": " << jsonString(link.computer) << "}";
  }
  out << (checked.empty() ? "" : "\n") << "],\n\"summary\": {\"links\": " << counts.total;
  for (LinkState state : kLinkStates)
    out << ", " << jsonString(linkStateName(state)) << ": " << counts.of(state);
  out << "}}\n";
}

// "1 link" or "12 links".
std::string links(size_t count) {
  return std::to_string(count) + (count == 1 ? " link" : " links");
}

// "left 3: not-found 2, changed-meanwhile 1, failed 0" for the rows not
// repointed.
std::string leftSummary(const std::vector<RepointOutcome>& outcomes) {
  size_t counts[4] = {};
  for (RepointOutcome outcome : outcomes) ++counts[static_cast<size_t>(outcome)];
  const size_t left = outcomes.size() - counts[0];
  std::string text = "left " + std::to_string(left);
  if (left == 0) return text;
  text += ":";
  for (RepointOutcome outcome :
       {RepointOutcome::notFound, RepointOutcome::changedMeanwhile, RepointOutcome::failed}) {
    text += std::string(outcome == RepointOutcome::notFound ? " " : ", ") +
            repointOutcomeName(outcome) + " " +
            std::to_string(counts[static_cast<size_t>(outcome)]);
  }
  return text;
}

size_t repointed(const std::vector<RepointOutcome>& outcomes) {
  size_t count = 0;
  for (RepointOutcome outcome : outcomes) count += outcome == RepointOutcome::repointed ? 1 : 0;
  return count;
}

}  // namespace

bool reportFormatNamed(const std::string& name, ReportFormat& format) {
  if (name == "text") {
    format = ReportFormat::text;
  } else if (name == "csv") {
    format = ReportFormat::csv;
  } else if (name == "json") {
    format = ReportFormat::json;
  } else {
    return false;
  }
  return true;
}

void writeCheckReport(std::ostream& out, const std::vector<CheckedLink>& listed,
                      const StateCounts& counts, ReportFormat format) {
  switch (format) {
    case ReportFormat::text:
      writeCheckText(out, listed, counts);
      break;
    case ReportFormat::csv:
      writeCheckCsv(out, listed);
      break;
    case ReportFormat::json:
      writeCheckJson(out, listed, counts);
      break;
  }
}

void writeRelinkReport(std::ostream& out, const RelinkPlan& plan,
                       const std::vector<RepointOutcome>* outcomes) {
  for (size_t i = 0; i < plan.rows.size(); ++i) {
    const RelinkRow& row = plan.rows[i];
    out << (outcomes ? repointOutcomeName((*outcomes)[i]) : row.found ? "found" : "not-found");
    writeLinkFields(out, row.link);
    out << '\t' << textField(row.link.path) << '\t' << textField(row.newPath) << '\n';
  }
  if (plan.rows.empty()) {
    out << "No link lies under " << plan.from;
    if (plan.newInsideOld()) out << " outside " << plan.to;
    out << ".\n";
  } else if (outcomes == nullptr) {
    const size_t found = plan.foundCount();
    out << links(plan.rows.size()) << " under " << plan.from << ": " << found
        << " with their file under " << plan.to << ", " << plan.rows.size() - found
        << " without. Nothing was changed; --apply relinks the " << found << ".\n";
  } else {
    out << "Relinked " << repointed(*outcomes) << " of " << links(plan.rows.size()) << " under "
        << plan.from << " to " << plan.to << "; " << leftSummary(*outcomes) << ".\n";
  }
}

void writeLocateReport(std::ostream& out, const LocatePlan& plan,
                       const std::vector<RepointOutcome>* outcomes) {
  for (size_t i = 0; i < plan.rows.size(); ++i) {
    const LocateRow& row = plan.rows[i];
    auto line = [&](const char* outcome, const std::string& match) {
      out << outcome;
      writeLinkFields(out, row.link.link);
      out << '\t' << textField(row.link.link.path) << '\t' << textField(match) << '\n';
    };
    if (row.matches.empty()) {
      line("none", "");
    } else if (row.matches.size() > 1) {
      for (const std::string& match : row.matches) line("several", match);
    } else {
      line(outcomes ? repointOutcomeName((*outcomes)[i]) : "found", row.matches.front());
    }
  }
  const size_t once = plan.withMatches(1);
  out << links(plan.rows.size()) << " looked for: " << once << " found once, " << plan.withSeveral()
      << " found in several places, " << plan.withMatches(0) << " not found; " << plan.filesSeen
      << (plan.filesSeen == 1 ? " file" : " files") << " seen under " << plan.folder;
  if (plan.foldersSkipped > 0) {
    out << " (" << plan.foldersSkipped << (plan.foldersSkipped == 1 ? " folder" : " folders")
        << " could not be read";
    if (plan.foldersNoAnswer > 0)
      out << ", " << plan.foldersNoAnswer << " of them on a share that did not answer";
    out << ")";
  }
  if (outcomes == nullptr) {
    out << ". Nothing was changed";
    if (once > 0) out << "; --apply relinks the " << once << " found once";
    out << ".\n";
  } else {
    out << ". Relinked " << repointed(*outcomes) << ".\n";
  }
}

}  // namespace qb::links

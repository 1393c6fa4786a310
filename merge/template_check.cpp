// The template check: the markers of a template walked from left to right,
// each tested for its brackets, its date form and format, its length and its
// name, up to the first error, which the event testErrorComment reports.

#include <algorithm>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr size_t npos = std::string::npos;
constexpr int32_t kLongestBody = 40;

const char* const kMissingOpening =
    "You are missing your opening brackets, '«' in one of your expressions";
const char* const kMissingClosingRound =
    "You are missing the closing round bracket, ')' in one of your date expressions";
const char* const kMissingOpeningRound =
    "You are missing the opening round bracket, '(' in one of your date expressions";

std::string badFormatMessage(const std::string& format) {
  return "The date format of: '" + format +
         "' is not valid.  Please see help for valid date formats.";
}

std::string tooLongMessage() {
  return "You are missing a closing bracket, '»' in one of your expressions.  Make sure you have "
         "a bracket immediately before and after a field.\r\n\r\neg. «Company Name»";
}

bool isMergeFormat(const std::string& format) {
  return std::find(mergeFormatTable.begin(), mergeFormatTable.end(), format) !=
         mergeFormatTable.end();
}

}  // namespace

std::string clsInsertFieldsInRTB::convertFieldName(const std::string& name) {
  Procedure proc(merge::traceName("convertFieldName"));
  std::string result;
  proc.step([&] {
    result =
        Replace(Replace(name, "«", "\\'ab", CompareMode::Text), "»", "\\'bb", CompareMode::Text);
  });
  return result;
}

bool clsInsertFieldsInRTB::testStr(const std::string& fieldName) {
  Procedure proc(merge::traceName("testStr"));
  bool result = false;
  proc.step([&] {
    result = UCase(fieldName) == "TODAYS DATE" ||
             fieldList_.findFieldRow(fieldDisplayNameColumn, Variant(fieldName)) >= 0;
  });
  return result;
}

bool clsInsertFieldsInRTB::testRTBComment(std::string& text, bool useRichBrackets,
                                          bool showMessages, bool skipFieldTest) {
  Procedure proc(merge::traceName("testRTBComment"));
  bool error = false;
  auto fail = [&](std::string message) {
    error = true;
    if (showMessages) testErrorComment.raise(message);
  };
  // The walk is over a normalised copy: typed brackets and legacy names are
  // handled before the check looks at them.
  std::string copy;
  proc.step([&] { copy = convertProvinceFields(text); });
  std::string open = "«";
  std::string close = "»";
  proc.step([&] {
    if (!useRichBrackets) return;
    open = convertFieldName(open);
    close = convertFieldName(close);
  });
  // Positions are byte offsets into the copy; what is left of it after a
  // marker starts at rest. A bracket that is not there is at npos, which
  // compares as the position 0 of the run-time: before everything.
  size_t rest = 0;
  size_t opening = npos;
  auto closingBeforeOpening = [&] {
    opening = findText(copy, open, rest);
    const size_t closing = findText(copy, close, rest);
    if (closing == npos ? opening != npos : opening != npos && closing < opening) {
      fail(kMissingOpening);
    }
  };
  proc.step(closingBeforeOpening);
  while (!proc.leaving() && opening != npos && !error) {
    proc.step([&] {
      const size_t closing = findText(copy, close, opening + 1);
      std::string body = copy.substr(opening + open.size(), closing - opening - open.size());
      rest = closing + close.size();
      if (Left(body, 1) == "(") {
        if (Right(body, 1) != ")") {
          fail(kMissingClosingRound);
        } else {
          const std::string inner = Mid(body, 2, Len(body) - 2);
          const size_t comma = inner.find(',');
          if (comma == npos) {
            // The format half of the marker is read, and it is not there.
            throw RuntimeError(err::kSubscript, "Subscript out of range");
          }
          body = Trim(inner.substr(0, comma));
          const std::string format = Trim(inner.substr(comma + 1));
          if (!isMergeFormat(format)) fail(badFormatMessage(format));
        }
      } else if (Right(body, 1) == ")") {
        fail(kMissingOpeningRound);
      }
      // A missing close bracket swallows the text up to the next one.
      if (!error && Len(body) > kLongestBody) fail(tooLongMessage());
      if (!skipFieldTest && !error && !testStr(body)) {
        fail("The " + merge::locale().getApplicationTitle() + " Pad did not recognize: «" + body +
             "» as a valid placeholder field name.");
      }
    });
    if (proc.failed()) break;
    if (!error) proc.step(closingBeforeOpening);
  }
  // A failure inside the check ends it with no error found.
  return error && !proc.failed();
}

}  // namespace qb

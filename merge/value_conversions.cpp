// The small conversions of a merged value: a duration between two times,
// today's date, and a value made ready for rich text.

#include <cstdlib>
#include <limits>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/host/clock.h"
#include "services/runtime/conversions.h"
#include "services/runtime/dates.h"
#include "services/runtime/format.h"
#include "services/runtime/strings.h"
#include "services/util/duration_text.h"

namespace qb {

std::string clsInsertFieldsInRTB::getTimeDurationFieldValue(double timeFrom, double timeTo) {
  Procedure proc(merge::traceName("getTimeDurationFieldValue"));
  std::string result;
  proc.step([&] {
    // An end before the start reads as the pair in the right order.
    const int64_t minutes = std::llabs(DateDiffMinutes(timeFrom, timeTo));
    if (minutes > std::numeric_limits<int32_t>::max()) {
      throw RuntimeError(err::kOverflow, "Overflow");
    }
    result = minutesToDurationText(static_cast<int32_t>(minutes));
  });
  return result;
}

std::string clsInsertFieldsInRTB::getTodaysDate(const std::string& format) {
  Procedure proc(merge::traceName("getTodaysDate"));
  std::string result;
  proc.step([&] {
    const std::string pattern = isBlankValue(Variant(format)) ? "mmm d, yyyy" : format;
    result = Format(Variant::date(hostToday()), pattern);
  });
  proc.step([&] {
    if (!isBlankValue(Variant(result)) && convertStrToRTF_) result = convertToRTF(result);
  });
  return result;
}

std::string clsInsertFieldsInRTB::convertToRTF(const std::string& value) {
  Procedure proc(merge::traceName("convertToRTF"));
  std::string result;
  proc.step([&] {
    if (!useWordWrap_) {
      // A rich text viewer ignores the line break itself: the lines run on
      // as a comma-separated list.
      result = Replace(value, "\r\n", ", \r\n", CompareMode::Text);
    } else {
      std::string lineStart;
      if (InStr(value, "\r\n") > 0) {
        // The indent is what stands in front of the marker on its line of
        // the document; with no line text kept it is empty.
        std::string indent;
        int32_t paragraph = 0;
        for (int32_t at = InStr(rtfLineText_, "\\par"); at > 0 && at < rtfLinePosition_;
             at = InStr(at + 1, rtfLineText_, "\\par")) {
          paragraph = at;
        }
        if (paragraph > 0) {
          for (int32_t at = paragraph + 5; at < rtfLinePosition_; ++at) {
            const std::string character = Mid(rtfLineText_, at, 1);
            if (character.empty() || character == "<") break;
            indent += character;
          }
        }
        lineStart = "\\par " + indent;
      }
      result = Replace(value, "\r\n", lineStart + "\r\n", CompareMode::Text);
    }
    // The document declares code page 1252: other characters go as escapes.
    result = toRtfEscapes(result);
  });
  return result;
}

}  // namespace qb

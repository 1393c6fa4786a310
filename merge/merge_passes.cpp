// The merge passes: a template normalised, its markers replaced by the
// values of the item's fields in two sweeps (plain brackets, then the same
// brackets as RTF source writes them), what is left removed, and the
// finished text returned. The engine does not touch a rich text box during
// a merge: the caller places the text.

#include <memory>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/marker_keys.h"
#include "merge/marker_sweep.h"
#include "merge/merge_services.h"
#include "merge/unfound_markers.h"
#include "services/errors/procedure.h"
#include "services/runtime/conversions.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr const char* kPlainOpen = "«";
constexpr const char* kPlainClose = "»";
constexpr const char* kRichOpen = "\\'ab";
constexpr const char* kRichClose = "\\'bb";

// The text a date field's marker in this format asks the formatter for: a
// date field asked for "dd/mm/yy" prints its month by three letters, today's
// date two digits.
std::string formatterText(int32_t format, bool todaysDate) {
  const std::string text = mergeFormatTable[format];
  return !todaysDate && text == "dd/mm/yy" ? "dd/mmm/yy" : text;
}

}  // namespace

std::string clsInsertFieldsInRTB::parseRTBComment() {
  Procedure proc(merge::traceName("parseRTBComment"));
  std::string text;
  std::string result;
  bool populated = false;
  proc.step([&] { text = prepareTemplate(); });
  proc.step([&] { populated = verifyFieldListIsPopulated(); });
  if (populated) {
    proc.step([&] { sweepMarkers(text, kPlainOpen, kPlainClose); });
    proc.step([&] { sweepMarkers(text, kRichOpen, kRichClose); });
    proc.step([&] { replaceUnfoundMergeFieldsWithBlanks(text); });
  }
  // The text is given back only when the passes reached their end.
  proc.step([&] { result = std::move(text); });
  return result;
}

std::string clsInsertFieldsInRTB::prepareTemplate() {
  Procedure proc(merge::traceName("prepareTemplate"));
  std::string text;
  proc.step([&] { text = convertProvinceFields(templateText_); });
  proc.step([&] {
    // A contact with no company: its name stands where the template asks
    // for the company's, unless the template names the contact already.
    if (!convertCompanyToContact_ || companyID_ > 0 || contactID_ < 1) return;
    for (const char* open : {kPlainOpen, kRichOpen}) {
      const std::string close = open == kPlainOpen ? kPlainClose : kRichClose;
      const std::string company = open + std::string("Company Name") + close;
      const std::string contact = open + std::string("Contact Display Name") + close;
      if (InStr(text, company, CompareMode::Text) > 0 &&
          InStr(text, contact, CompareMode::Text) == 0) {
        text = Replace(text, company, contact, CompareMode::Text);
        return;
      }
    }
  });
  return text;
}

const MarkerKeys& clsInsertFieldsInRTB::markerKeys() {
  if (!markerKeys_ || markerKeys_->generation() != fieldList_.generation()) {
    markerKeys_ = std::make_unique<MarkerKeys>(fieldList_);
  }
  return *markerKeys_;
}

std::string clsInsertFieldsInRTB::markerValue(int32_t key) {
  const MarkerKeys::Key& found = markerKeys().key(key);
  if (found.rowIndex < 0) return getTodaysDate(mergeFormatTable[found.format]);
  return getDataFieldInfo(found.rowIndex,
                          found.format < 0 ? std::string() : formatterText(found.format, false));
}

void clsInsertFieldsInRTB::sweepMarkers(std::string& text, const std::string& open,
                                        const std::string& close) {
  if (!markerKeys().usable()) {
    sweepLiterally(text, open, close);
    return;
  }
  MarkerSweep sweep(markerKeys(), open, close, convertStrToRTF_,
                    [this](int32_t key) { return markerValue(key); });
  sweep.run(text);
}

void clsInsertFieldsInRTB::sweepLiterally(std::string& text, const std::string& open,
                                          const std::string& close) {
  auto holds = [&](const std::string& marker) {
    return InStr(text, marker, CompareMode::Text) > 0;
  };
  for (int32_t format = 0; format < static_cast<int32_t>(mergeFormatTable.size()); ++format) {
    const std::string marker = open + "(Todays Date, " + mergeFormatTable[format] + ")" + close;
    if (holds(marker)) replaceText(text, marker, getTodaysDate(mergeFormatTable[format]));
  }
  const int32_t count = fieldList_.getFieldRowCount();
  for (int32_t number = 1; number <= count; ++number) {
    int32_t row = number;
    if (!fieldList_.moveToFieldRow(row)) continue;
    const std::string name = toText(fieldList_.getFieldColumn(fieldDisplayNameColumn));
    const int32_t index = CLng(fieldList_.getFieldRowIndex());
    const Variant type = fieldList_.getFieldColumn(fieldTypeColumn);
    if (type.isNumberType() && CLng(type) == fieldTypeDate) {
      for (int32_t format = 0; format < static_cast<int32_t>(mergeFormatTable.size()); ++format) {
        const std::string marker =
            open + "(" + name + ", " + mergeFormatTable[format] + ")" + close;
        if (holds(marker)) {
          replaceText(text, marker, getDataFieldInfo(index, formatterText(format, false)));
        }
      }
    } else {
      const std::string marker = open + name + close;
      if (holds(marker)) replaceText(text, marker, getDataFieldInfo(index, ""));
    }
  }
}

bool clsInsertFieldsInRTB::replaceText(std::string& text, const std::string& find,
                                       const std::string& replacement) {
  Procedure proc(merge::traceName("replaceText"));
  proc.step([&] {
    if (!convertStrToRTF_) {
      text = Replace(text, find, replacement, CompareMode::Text);
      return;
    }
    const int32_t position = InStr(text, find, CompareMode::Text);
    if (position == 0) {
      // The plain form is not there; the rich form is looked for and
      // nothing is replaced (a merge never comes here).
      InStr(text, convertFieldName(find), CompareMode::Text);
    } else if (position == 1 || Mid(text, position - 1, 1) == " ") {
      text = Replace(text, find, replacement, CompareMode::Text);
    } else {
      // A value must not run into a control word just before the marker.
      text = Replace(text, find, " " + replacement, CompareMode::Text);
    }
  });
  return false;
}

bool clsInsertFieldsInRTB::replaceUnfoundMergeFieldsWithBlanks(std::string& text) {
  Procedure proc(merge::traceName("replaceUnfoundMergeFieldsWithBlanks"));
  proc.step([&] {
    if (fieldList_.getFieldRowCount() == 0) return;
    const UnfoundRemoval plain = removeUnfoundMarkers(text, kPlainOpen, kPlainClose);
    // The RTF form only when the plain one had nothing, and not past a
    // bracket left open.
    if (plain.removed || plain.stoppedAtLoneOpen) return;
    removeUnfoundMarkers(text, kRichOpen, kRichClose);
  });
  return false;
}

std::string clsInsertFieldsInRTB::removeBlankLinesFromRTFText(std::string& text) {
  // The blank paragraphs are worked out and then dropped: the text is
  // returned as it came, and blank lines stay.
  Procedure proc(merge::traceName("removeBlankLinesFromRTFText"));
  std::string result;
  proc.step([&] { result = text; });
  return result;
}

}  // namespace qb

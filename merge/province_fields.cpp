// convertProvinceFields: a template normalised to today's field names and to
// the firm's country and province, by a fixed list of replacements over the
// whole text, each ignoring case, in order; later ones see the effect of
// earlier ones.
//
// The first list runs always. Some of its finds have no brackets and so hit
// a letter's own words too ("docket" becomes "Time Entry"): that is how the
// list has always worked. The second list is the country's: the United
// States markers for a US firm, and for a Canadian firm the province's
// workers' board, sales tax and corporation tax markers.

#include <cstring>
#include <string>
#include <vector>

#include "merge/cls_insert_fields_in_rtb.h"
#include "merge/merge_services.h"
#include "services/errors/procedure.h"
#include "services/host/locale_reference.h"
#include "services/runtime/strings.h"

namespace qb {

namespace {

struct Replacement {
  std::string find;
  std::string replace;
};
using Replacements = std::vector<Replacement>;

// A plain-bracket marker in the form rich text source writes it.
std::string richForm(const std::string& text) {
  return Replace(Replace(text, "«", "\\'ab"), "»", "\\'bb");
}

const Replacements& alwaysList() {
  static const Replacements list = [] {
    Replacements rows = {
        {"<<", "«"},
        {">>", "»"},
        {"«(Due Date", "«(Task Due Date"},
        {"«(in-House Due Date", "«(Task in-House Due Date"},
        {"«(Calendar Date", "«(Task Calendar Due Date"},
        {"\\'ab(Due Date", "\\'ab(Task Due Date"},
        {"\\'ab(in-House Due Date", "\\'ab(Task in-House Due Date"},
        {"\\'ab(Calendar Date", "\\'ab(Task Calendar Due Date"},
        {"«Contact Full Name»", "«Contact Display Name»"},
        {"\\'abContact Full Name\\'bb", "\\'abContact Display Name\\'bb"},
        {"Contact Full Name", "Contact Display Name"},
        {"Docket", "Time Entry"},
        {"Long Date", "dddd, mmmm d yyyy"},
        {"Medium Date", "mmm d yyyy"},
        {"Short Date", "dd/mm/yy"},
        {"«Notified Date»", "«Calendar Date»"},
        {"«Weekday Date»", "«Calendar Date»"},
        {"\\'abNotified Date\\'bb", "\\'abCalendar Date\\'bb"},
        {"\\'abWeekday Date\\'bb", "\\'abCalendar Date\\'bb"},
    };
    // The old task names, in plain brackets, then in rich text ones.
    const Replacements taskNames = {
        {"«Remittance Name»", "«Task Name»"},
        {"«Remittance Due Date»", "«Task Due Date»"},
        {"«Remittance in-House Due Date»", "«Task in-House Due Date»"},
        {"«Remittance Weekday Due Date»", "«Task Calendar Date»"},
        {"«Task Weekday Due Date»", "«Task Calendar Date»"},
        {"«Remittance Year»", "«Task Year»"},
        {"«Custom Remitt Field 1»", "«Custom Task Field 1»"},
        {"«Custom Remitt Field 2»", "«Custom Task Field 2»"},
        {"«Custom Remitt Field 3»", "«Custom Task Field 3»"},
        {"«Custom Remitt Field 4»", "«Custom Task Field 4»"},
        {"«Custom Remitt Field 5»", "«Custom Task Field 5»"},
    };
    rows.insert(rows.end(), taskNames.begin(), taskNames.end());
    rows.push_back({"«Contact Full Name»", "«Contact Display Name»"});
    for (const Replacement& row : taskNames) {
      rows.push_back({richForm(row.find), richForm(row.replace)});
    }
    rows.push_back({"\\'abContact Full Name\\'bb", "\\'abContact Display Name\\'bb"});
    return rows;
  }();
  return list;
}

const Replacements kUnitedStates = {
    {"«Province»", "«State»"},
    {"«Postal Code»", "«Zip Code»"},
    {"«Contact Business Province»", "«Contact Business State»"},
    {"«Contact Business Postal Code»", "«Contact Business Zip Code»"},
    {"«Contact Home Province»", "«Contact Home State»"},
    {"«Contact Home Postal Code»", "«Contact Home Zip Code»"},
    {"«Spouse Home Province»", "«Spouse Home State»"},
    {"«Spouse Home Postal Code»", "«Spouse Home Zip Code»"},
    {"«Your Province»", "«Your State»"},
    {"«Your Postal Code»", "«Your Zip Code»"},
    {"«Contact SIN»", "«Contact SSN»"},
    {"«Spouse SIN»", "«Spouse SSN»"},
};

// The corporation tax markers of all provinces; a province turns the others
// into its own.
const std::vector<std::string> kCorporationTaxMarkers = {
    "«Alberta Corp. Tax Number»", "«BC Corp. Tax Number»",     "«Manitoba Corp. Tax Number»",
    "«N.B. Corp. Tax Number»",    "«N.S. Corp. Tax Number»",   "«Nfld. Corp. Tax Number»",
    "«ON Corp. Tax Number»",      "«P.E.I. Corp. Tax Number»", "«Que. Corp. Tax Number»",
    "«Sask. Corp. Tax Number»",
};

const Replacements kWesternBoard = {
    {"«WSIB Number»", "«WCB Number»"},
    {"«NEQ Number»", "«WCB Number»"},
    {"«WSIB Premium Rate»", "«WCB Premium Rate»"},
    {"«WHSCC Number»", "«WCB Number»"},
    {"«WSIB Firm Number»", "«WSIB Firm Number»"},
};
const Replacements kQuebecBoard = {
    {"«WSIB Number»", "«NEQ Number»"},
    {"«WSIB Premium Rate»", "«CSST Premium Rate»"},
    {"«WHSCC Number»", "«WCB Number»"},
    {"«WSIB Firm Number»", "«WSIB Firm Number»"},
};
const Replacements kMaritimeBoard = {
    {"«WSIB Number»", "«WCB Number»"},
    {"«WHSCC Number»", "«WCB Number»"},
    {"«NEQ Number»", "«WCB Number»"},
    {"«WSIB Premium Rate»", "«WCB Premium Rate»"},
    {"«WSIB Firm Number»", "«WSIB Firm Number»"},
};
const Replacements kHarmonisedBoard = {
    {"«WSIB Number»", "«WHSCC Number»"},          {"«WCB Number»", "«WHSCC Number»"},
    {"«NEQ Number»", "«WHSCC Number»"},           {"«WSIB Premium Rate»", "«WHSCC Premium Rate»"},
    {"«WSIB Firm Number»", "«WSIB Firm Number»"},
};
const Replacements kOntarioBoard = {
    {"«WCB Number»", "«WSIB Number»"},           {"«NEQ Number»", "«WSIB Number»"},
    {"«WCB Firm Number»", "«WSIB Firm Number»"}, {"«WCB Premium Rate»", "«WSIB Premium Rate»"},
    {"«WHSCC Number»", "«WSIB Number»"},
};

const Replacement kToGST = {"«HST Number»", "«GST Number»"};
const Replacement kToHST = {"«GST Number»", "«HST Number»"};

struct ProvinceRules {
  int32_t code;  // -1: every code without rules of its own, Ontario's among them
  const Replacements& board;
  bool dateRule;  // "«GST Number»" to "«HST Number»" from 1 July 2010, before the tax row
  const Replacement& salesTax;
  const char* corporationTax;  // the province's own marker
  const char* keptMarker;      // a marker of the set this province leaves alone
  Replacements extra;
  bool unitedStatesBackwards;  // the United States rows undone, at the end
};

const std::vector<ProvinceRules>& provinceRules() {
  static const std::vector<ProvinceRules> rules = {
      {0, kWesternBoard, false, kToGST, "«Alberta Corp. Tax Number»", nullptr, {}, false},
      {1, kWesternBoard, true, kToGST, "«BC Corp. Tax Number»", nullptr, {}, false},
      {2, kWesternBoard, false, kToGST, "«Manitoba Corp. Tax Number»", nullptr, {}, false},
      {4, kWesternBoard, false, kToGST, "«Sask. Corp. Tax Number»", nullptr, {}, false},
      {8,
       kQuebecBoard,
       false,
       kToGST,
       "«Que. Corp. Tax Number»",
       "«Sask. Corp. Tax Number»",
       {{"«ON Corp. MCBS Number»", "«Quebec ID Number»"}},
       false},
      {9, kMaritimeBoard, false, kToHST, "«N.S. Corp. Tax Number»", nullptr, {}, false},
      {10, kHarmonisedBoard, false, kToHST, "«N.B. Corp. Tax Number»", nullptr, {}, false},
      {11, kHarmonisedBoard, false, kToHST, "«Nfld. Corp. Tax Number»", nullptr, {}, false},
      {12, kMaritimeBoard, false, kToGST, "«P.E.I. Corp. Tax Number»", nullptr, {}, false},
      {-1,
       kOntarioBoard,
       true,
       kToGST,
       "«ON Corp. Tax Number»",
       nullptr,
       {{"«Quebec ID Number»", "«ON Corp. MCBS Number»"}},
       true},
  };
  return rules;
}

const ProvinceRules& rulesFor(int32_t provinceCode) {
  for (const ProvinceRules& rules : provinceRules()) {
    if (rules.code == provinceCode) return rules;
  }
  return provinceRules().back();
}

// A template under rewriting. Most rows look for a marker in one bracket
// form: such a row looks only where the text has an open bracket of that
// form, which the rewriter notes, and notes again after every row that
// changed the text.
class Rewriter {
 public:
  explicit Rewriter(std::string& text) : text_(text) { noteBrackets(); }

  void replaceAll(const Replacement& row) {
    if (!holds(row.find)) return;
    text_ = Replace(text_, row.find, row.replace, CompareMode::Text);
    noteBrackets();
  }
  void replaceAll(const Replacements& rows) {
    for (const Replacement& row : rows) replaceAll(row);
  }

 private:
  static constexpr const char* kPlain = "«";
  static constexpr const char* kRich = "\\'ab";

  bool holds(const std::string& find) const {
    const std::vector<size_t>* places = find.rfind(kPlain, 0) == 0  ? &plain_
                                        : find.rfind(kRich, 0) == 0 ? &rich_
                                                                    : nullptr;
    if (places == nullptr) return findText(text_, find) != std::string::npos;
    // The byte behind the bracket tells most places apart at once.
    const size_t behind = places == &plain_ ? std::strlen(kPlain) : std::strlen(kRich);
    const char next = lowerAscii(find[behind]);
    for (size_t at : *places) {
      const bool mayMatch = static_cast<unsigned char>(next) >= 0x80 ||
                            (at + behind < text_.size() && lowerAscii(text_[at + behind]) == next);
      if (mayMatch && matchesTextAt(text_, at, find)) {
        return true;
      }
    }
    return false;
  }
  static char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
  void noteBrackets() {
    for (auto [bracket, places] : {std::pair{kPlain, &plain_}, std::pair{kRich, &rich_}}) {
      places->clear();
      for (size_t at = findText(text_, bracket); at != std::string::npos;
           at = findText(text_, bracket, at + 1)) {
        places->push_back(at);
      }
    }
  }

  std::string& text_;
  std::vector<size_t> plain_;  // where "«" stands
  std::vector<size_t> rich_;   // where "\\'ab" stands, in any case
};

void convertForProvince(Rewriter& text, const ProvinceRules& rules) {
  text.replaceAll(rules.board);
  // In both provinces that have the date rule the tax row after it turns
  // the markers back to "«GST Number»": the order stands as it is.
  if (rules.dateRule && merge::harmonisedTaxInForce()) text.replaceAll(kToHST);
  text.replaceAll(rules.salesTax);
  for (const std::string& marker : kCorporationTaxMarkers) {
    if (marker == rules.corporationTax) continue;
    if (rules.keptMarker != nullptr && marker == rules.keptMarker) continue;
    text.replaceAll(Replacement{marker, rules.corporationTax});
  }
  text.replaceAll(rules.extra);
  if (rules.unitedStatesBackwards) {
    for (const Replacement& row : kUnitedStates) text.replaceAll({row.replace, row.find});
  }
}

}  // namespace

std::string clsInsertFieldsInRTB::convertProvinceFields(const std::string& text) {
  Procedure proc(merge::traceName("convertProvinceFields"));
  std::string converted = text;
  Rewriter rewriter(converted);
  std::string result;
  proc.step([&] { rewriter.replaceAll(alwaysList()); });
  proc.step([&] {
    const int32_t country = merge::locale().getCountryCode();
    if (country == 2) {
      rewriter.replaceAll(kUnitedStates);
    } else if (country == 1) {
      convertForProvince(rewriter, rulesFor(merge::locale().getProvinceCode()));
    }
  });
  // The result is set only at the end of the list: a failure gives "".
  proc.step([&] { result = converted; });
  return result;
}

}  // namespace qb

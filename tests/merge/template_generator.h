#pragma once
// Random templates for comparing the merge's route with the passes as
// written: markers of known fields in every form (simple, dated with each
// format, today's date), in both bracket forms and the typed one, with
// their names in other cases and their brackets mismatched; unknown and
// misspelt names, markers split by RTF control words, lone brackets, RTF
// control words and escapes, accents and the words the normalisation
// rewrites.

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "merge/merge_field_types.h"

namespace qb::test {

class TemplateGenerator {
 public:
  // names: the display names of the simple fields, dated: of the date fields.
  // richOnly: the brackets only as RTF source writes them, so that the
  // removal of unfound markers comes to them.
  TemplateGenerator(uint32_t seed, std::vector<std::string> names, std::vector<std::string> dated,
                    bool richOnly = false)
      : random_(seed), names_(std::move(names)), dated_(std::move(dated)), richOnly_(richOnly) {}

  std::string next() {
    std::string text;
    for (int n = between(0, 24); n > 0; --n) text += piece();
    return text;
  }

 private:
  int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
  template <class List>
  std::string pick(const List& list) {
    return list[static_cast<size_t>(between(0, static_cast<int>(std::size(list)) - 1))];
  }
  std::string pick(std::initializer_list<const char*> list) {
    return std::data(list)[between(0, static_cast<int>(list.size()) - 1)];
  }

  std::string piece() {
    static const char* const kText[] = {
        "Dear ",  "client",     " ",         ", ",   "\r\n",
        "docket", "Short Date", "é",         "Côté", "x",
        "(",      ")",          "bb",        "ab",   "{\\rtf1\\ansi ",
        "\\b ",   "\\b",        "\\par\r\n", "}",    "\\'e9",
        "\\\\",   "\\'",        "'bb",       "\\'a", "\\",
        "'"};
    static const char* const kLone[] = {"\\'ab", "\\'bb", "\\'AB", "«", "»", "<<", ">>", "\xC2"};
    switch (between(0, 11)) {
      case 0:
      case 1:
      case 2:
        return pick(kText);
      case 3:
        return richOnly_ ? kLone[between(0, 2)] : pick(kLone);
      case 4:
        return splitMarker();
      case 5:
        // Bytes that make a bracket with what a value leaves beside them.
        return pick({"\\'a", "\\", "\\'", "\xC2"}) + marker() + pick({"", "b", "\xAB", "'bb"});
      default:
        return marker();
    }
  }

  // A marker whose name another marker cuts in two: once the inner one is
  // replaced, the outer one may name a field.
  std::string splitMarker() {
    if (names_.empty()) return "";
    const std::string name = pick(names_);
    const size_t cut = static_cast<size_t>(between(0, static_cast<int>(name.size())));
    const bool rich = richOnly_ || between(0, 2) == 0;
    return (rich ? "\\'ab" : "«") + name.substr(0, cut) + marker() + name.substr(cut) +
           (rich ? "\\'bb" : "»");
  }

  std::string marker() {
    static const char* const kOpen[] = {"«", "\\'ab", "\\'AB", "<<"};
    static const char* const kClose[] = {"»", "\\'bb", "\\'BB", ">>"};
    const int form = richOnly_ ? between(1, 2) : between(0, 3);
    const std::string open = kOpen[form];
    const std::string close =
        between(0, 4) == 0 ? kClose[richOnly_ ? between(1, 2) : between(0, 3)] : kClose[form];
    return open + body() + close;
  }

  std::string body() {
    switch (between(0, 9)) {
      case 0:
        return "(Todays Date, " + format() + ")";
      case 1:
      case 2:
        return dated_.empty() ? "" : "(" + cased(pick(dated_)) + ", " + format() + ")";
      case 3:
        return pick(
            {"No Such Field", "Compnay Name", "", "Todays Date", "(Year End Date)", "Company "});
      case 4:
        // A marker split by a control word or holding another bracket.
        return richOnly_
                   ? pick({"Company \\b Name", "City\\'bb", "Company Name\\'ab"})
                   : pick({"Company \\b Name", "Company «Name", "City\\'bb", "Company Name\\'ab"});
      default:
        return names_.empty() ? "" : cased(pick(names_));
    }
  }

  std::string format() {
    if (between(0, 5) == 0) return pick({"MMMM D YYYY", "nope"});
    return mergeFormatTable[static_cast<size_t>(between(0, 13))];
  }

  // The name now and then in another case.
  std::string cased(std::string name) {
    if (between(0, 4) != 0) return name;
    for (char& c : name) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    return name;
  }

  std::mt19937 random_;
  std::vector<std::string> names_;
  std::vector<std::string> dated_;
  bool richOnly_;
};

}  // namespace qb::test

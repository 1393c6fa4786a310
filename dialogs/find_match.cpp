#include "dialogs/find_match.h"

#include <string_view>

#include "services/runtime/strings.h"

namespace qb {

namespace {

// True when a part of the split ends in nothing but a blank: empty, or its
// last character is a space (Trim cuts spaces only).
bool endsBlank(std::string_view part) { return part.empty() || part.back() == ' '; }

}  // namespace

bool findMatchText(const std::string& text, const std::string& searchText, int16_t mode) {
  const bool matchCase = mode == 1 || mode == 3;
  const bool wholePhrase = mode == 2 || mode == 3;
  const std::string folded = matchCase ? std::string() : LCase(text);
  const std::string foldedSearch = matchCase ? std::string() : LCase(searchText);
  std::string_view haystack = matchCase ? std::string_view(text) : std::string_view(folded);
  std::string_view needle =
      matchCase ? std::string_view(searchText) : std::string_view(foldedSearch);
  // An empty search text splits nothing: the text stays one part.
  if (needle.empty()) return false;
  const size_t first = haystack.find(needle);
  if (first == std::string_view::npos) return false;
  if (!wholePhrase) return true;
  // Part 0 runs up to the first match; part 1 from after it to the next
  // match or the end.
  std::string_view part0 = haystack.substr(0, first);
  const size_t afterFirst = first + needle.size();
  const size_t second = haystack.find(needle, afterFirst);
  std::string_view part1 = haystack.substr(
      afterFirst, second == std::string_view::npos ? std::string_view::npos : second - afterFirst);
  return endsBlank(part0) && endsBlank(part1);
}

}  // namespace qb

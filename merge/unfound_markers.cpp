#include "merge/unfound_markers.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

#include "services/runtime/strings.h"

namespace qb {

namespace {

constexpr size_t npos = std::string::npos;

// The byte length of the first character of a bracket: the piece removed
// ends with it.
size_t firstCharacterLength(std::string_view bracket) {
  const unsigned char c = static_cast<unsigned char>(bracket[0]);
  return c < 0x80 ? 1 : (c >> 5) == 0x6 ? 2 : (c >> 4) == 0xE ? 3 : 4;
}

struct Span {
  size_t begin;
  size_t end;  // just behind the first character of the close bracket
};

// The one-reading route; false when the text is not of the shape it needs.
bool removeInOneReading(std::string& text, std::string_view open, std::string_view close,
                        UnfoundRemoval& outcome) {
  const size_t closeFirst = firstCharacterLength(close);
  std::vector<Span> spans;
  size_t nextOpen = findText(text, open);
  size_t nextClose = findText(text, close);
  size_t pending = npos;
  while (nextOpen != npos || nextClose != npos) {
    if (nextOpen != npos && (nextClose == npos || nextOpen < nextClose)) {
      if (pending != npos) return false;  // an open bracket not closed before the next
      pending = nextOpen;
      nextOpen = findText(text, open, nextOpen + open.size());
      continue;
    }
    if (pending != npos) spans.push_back({pending, nextClose + closeFirst});
    pending = npos;
    nextClose = findText(text, close, nextClose + close.size());
  }
  const size_t lone = pending;
  if (closeFirst > 1) {
    // "«" and "»" are two bytes: a stray first byte just before a marker and
    // a stray second byte just behind one make a bracket once they meet.
    for (const Span& span : spans) {
      const bool before =
          span.begin > 0 && static_cast<unsigned char>(text[span.begin - 1]) == 0xC2;
      const unsigned char after =
          span.end < text.size() ? static_cast<unsigned char>(text[span.end]) : 0;
      if (before || after == 0xAB || after == 0xBB) return false;
    }
  } else {
    // The pieces end at a backslash, which ends no marker: no piece may be
    // the beginning of another marker, nor of the text of a lone bracket.
    std::unordered_set<std::string_view> pieces;
    size_t longest = 0;
    for (const Span& span : spans) {
      pieces.insert(std::string_view(text).substr(span.begin, span.end - span.begin));
      longest = std::max(longest, span.end - span.begin);
    }
    // True when a piece stands at begin and ends at or before limit.
    auto holdsPiece = [&](size_t begin, size_t limit) {
      limit = std::min(limit, begin + longest);
      for (size_t at = text.find('\\', begin + 1); at != npos && at + 1 <= limit;
           at = text.find('\\', at + 1)) {
        if (pieces.count(std::string_view(text).substr(begin, at + 1 - begin))) return true;
      }
      return false;
    };
    for (const Span& span : spans) {
      if (holdsPiece(span.begin, span.end - 1)) return false;  // a piece shorter than its own
    }
    if (lone != npos && holdsPiece(lone, text.size())) return false;
  }
  std::string kept;
  kept.reserve(text.size());
  size_t from = 0;
  for (const Span& span : spans) {
    kept.append(text, from, span.begin - from);
    from = span.end;
  }
  kept.append(text, from, npos);
  text = std::move(kept);
  outcome.removed = !spans.empty();
  outcome.stoppedAtLoneOpen = lone != npos;
  return true;
}

void removeOneByOne(std::string& text, std::string_view open, std::string_view close,
                    UnfoundRemoval& outcome) {
  const size_t closeFirst = firstCharacterLength(close);
  size_t from = 0;
  for (;;) {
    const size_t begin = findText(text, open, from);
    if (begin == npos) return;
    const size_t closed = findText(text, close, begin + 1);
    if (closed == npos) {
      outcome.stoppedAtLoneOpen = true;
      return;
    }
    const std::string piece = text.substr(begin, closed + closeFirst - begin);
    // Nothing before the first open bracket holds the piece.
    const std::string rest = Replace(text.substr(begin), piece, "");
    text.resize(begin);
    text += rest;
    outcome.removed = true;
    // A bracket made of the bytes on both sides of the cut starts at most
    // three bytes ahead of it.
    from = begin > 3 ? begin - 3 : 0;
  }
}

}  // namespace

UnfoundRemoval removeUnfoundMarkers(std::string& text, std::string_view open,
                                    std::string_view close) {
  UnfoundRemoval outcome;
  if (!removeInOneReading(text, open, close, outcome)) removeOneByOne(text, open, close, outcome);
  return outcome;
}

}  // namespace qb

#pragma once
// MarkerSweep: one sweep of the merge over one bracket pair, reading the
// template once instead of searching it for every marker of every field.
//
// The literal sweep takes the keys in their order (MarkerKeys) and, for
// each whose marker the text holds, replaces all its occurrences by the
// value, so that later keys see the text as the earlier ones left it. This
// route finds the markers of the text first, as the places where an open
// bracket is followed by a close bracket with no other open bracket between
// (the body of a display name holds no bracket, so an occurrence of a key's
// marker is always such a place), and then replaces, in the keys' order, the
// places of each key found.
//
// What a replacement changes is checked, and the text is read again from
// the current state whenever the replacement could have made or broken a
// marker: a value holding a bracket character, a marker with an unclosed
// open bracket before it (removing the marker closes that bracket
// elsewhere), or a bracket that could form across the ends of the value.
// Keys already passed are not looked for again, as the written sweep does
// not come back to them.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace qb {

class MarkerKeys;

class MarkerSweep {
 public:
  // valueOf gives the value of a key found, once per key, in the keys'
  // order. With blankGuard (values going into rich text) a value whose key's
  // first occurrence neither starts the text nor follows a blank gets a
  // blank ahead of it, in every occurrence.
  MarkerSweep(const MarkerKeys& keys, std::string_view open, std::string_view close,
              bool blankGuard, std::function<std::string(int32_t key)> valueOf);

  void run(std::string& text);

 private:
  struct Place {
    size_t begin;             // the open bracket
    size_t end;               // just behind the close bracket
    int32_t key;              // the key whose marker this is
    bool unclosedOpenBefore;  // an open bracket with no close stands before it
    int32_t value = -1;       // the replacement in values_, once replaced
  };

  // The markers of keys after the one passed.
  void findPlaces(const std::string& text, int32_t passed);
  // Notes a marker (begin, end) whose removal could make a bracket of the
  // bytes on either side: the text since the last marker is literalBegin on.
  void noteStraddleRisk(const std::string& text, size_t literalBegin, size_t begin, size_t end);
  // What a place stands for now: its value once replaced, else its marker.
  std::string_view content(const std::string& text, const Place& place) const;
  // Up to count bytes of the current text just ahead of place i.
  std::string bytesBefore(const std::string& text, size_t i, size_t count) const;
  // True when replacing the places given by value may have made or broken a
  // marker, so that the text must be read again.
  bool mayChangeMarkers(const std::string& text, const std::vector<size_t>& replaced,
                        const std::string& value) const;
  // The text with the places replaced so far.
  std::string currentText(const std::string& text) const;

  const MarkerKeys& keys_;
  std::string_view open_;
  std::string_view close_;
  bool plain_;  // the one-character brackets (the other pair is RTF source)
  bool blankGuard_;
  std::function<std::string(int32_t)> valueOf_;
  std::vector<Place> places_;
  std::vector<std::string> values_;
  bool straddleRisk_ = false;  // some marker has bytes beside it that noteStraddleRisk fears
};

}  // namespace qb

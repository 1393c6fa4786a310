#pragma once
// The removal of the markers that no sweep replaced, in one bracket pair.
//
// Step by step, the removal takes the first open bracket, the piece from it to
// the first close bracket after it, counted as if the close bracket were one
// character long, removes every exact occurrence of that piece, and starts
// again from the beginning. For the RTF source form (\'ab ... \'bb) the piece
// thus ends at the backslash of the close bracket and "'bb" stays behind.
//
// When each open bracket of the text is closed before the next one opens
// and, in the RTF form, no piece is the beginning of another marker, every
// piece is exactly one marker and the result is the text with all those
// markers cut out: that is found in one reading. Otherwise the pieces are
// removed one after the other, each removal reading on from where
// the last piece began (nothing before it changes).

#include <string>
#include <string_view>

namespace qb {

struct UnfoundRemoval {
  bool removed = false;            // some piece was removed
  bool stoppedAtLoneOpen = false;  // an open bracket with no close bracket behind it
};

// Removes the unfound markers of the pair from text. An open bracket with no
// close bracket after it ends the removal, leaving the rest as it stands.
UnfoundRemoval removeUnfoundMarkers(std::string& text, std::string_view open,
                                    std::string_view close);

}  // namespace qb

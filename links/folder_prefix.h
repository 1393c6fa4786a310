#pragma once
// Folder prefixes of link paths: "everything under this folder". A prefix
// matches whole path components, so "/srv/data" holds "/srv/data" and
// "/srv/data/a.pdf" but not "/srv/database/a.pdf". Paths are compared as
// they are stored, as text, with "/" as the separator.

#include <string>

namespace qb::links {

// The prefix as the links are matched with it: absolute, with "." and ".."
// resolved, doubled and ending separators removed ("/" stays "/"). Symbolic
// links stay as written, as the stored paths keep them. False, with the
// reason in error, for an empty or relative prefix.
bool normalizePrefix(const std::string& text, std::string& prefix, std::string& error);

// True when path is the prefix's folder itself or lies under it.
bool isUnderPrefix(const std::string& path, const std::string& prefix);

// The path with the prefix from replaced by to; the path must lie under from.
std::string replacePrefix(const std::string& path, const std::string& from, const std::string& to);

// Checks a folder before links are pointed into it or files looked for in
// it: false, with the reason, when it is not there, is no folder, may not be
// read or does not answer (asked through the file-facts service, so a dead
// share costs its bounded wait). A relative folder is taken from the working
// folder; folder becomes the absolute path in its normal form.
bool checkFolderReachable(std::string& folder, std::string& error);

}  // namespace qb::links

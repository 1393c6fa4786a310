#pragma once
// Every client has a main category: the top of its tree, which can't be
// edited or deleted, and under it the category of its merge documents. A
// client that has neither yet (a client added after the document links came
// in, or one whose categories were never made) gets both the first time its
// tree is filled, so there is always a node to add categories and links to.

#include <cstdint>
#include <vector>

#include "services/quillbox/client_category_rows.h"

namespace qb::quillboxLibrary {

// The folder of a client's merge documents: "Merge Documents/<client>" under
// the firm's data folder, the client's name made fit for a folder name
// (characters no file system takes become "-"). "" without a data folder.
std::string mergeDocumentsFolder(const std::string& clientName);

// When rows (the client's categories) hold no main category (special type 1)
// and the client exists, adds the main category (named for the client, at
// the top, described as "All documents of <client>") and under it the merge
// documents category (special type 2, "Merge Documents", tied to
// mergeDocumentsFolder) through writable recordsets; the categories that
// stood at the top go under the main one. True when it added them. A company of 0 or more takes
// precedence over a contact; with neither, or an id that names no client, nothing is added. The
// caller has tested isConnected.
bool ensureMainCategory(DatabaseReference& db, int32_t companyID, int32_t contactID,
                        const std::vector<CategoryRow>& rows);

}  // namespace qb::quillboxLibrary

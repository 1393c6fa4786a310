#pragma once
// A document link as the link-health tools see it: the row of Documents with
// the client it belongs to and the path of its category, for reports that
// span the whole firm.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace qb::links {

struct LinkRecord {
  int32_t documentID = -1;
  int32_t companyID = -1;  // the client: a company, or else
  int32_t contactID = -1;  // a contact (-1: none)
  int32_t categoryID = -1;
  std::string clientName;    // the company's name, or the contact's as displayed
  std::string categoryPath;  // the category's name under its parents' ("Tax / 2024")
  std::string name;          // the link's display name
  std::string path;          // the full path of the file
  std::string computer;      // the computer the link was added on

  bool isCompany() const { return companyID >= 0; }
  bool hasClient() const { return companyID >= 0 || contactID >= 0; }
};

// Which links a walk takes: one company's, one contact's, or all of them.
struct LinkScope {
  int32_t companyID = -1;
  int32_t contactID = -1;

  static LinkScope all() { return {}; }
  static LinkScope company(int32_t id) { return {id, -1}; }
  static LinkScope contact(int32_t id) { return {-1, id}; }
  bool isAll() const { return companyID < 0 && contactID < 0; }
};

// Progress of a long walk: done out of total (total 0 when it is not known
// ahead, as in a walk of a folder tree). Called often; cheap to call.
using Progress = std::function<void(size_t done, size_t total)>;

}  // namespace qb::links

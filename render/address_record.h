#pragma once
// AddressRecord: the thirteen strings the address functions read, in their
// fixed order. The functions take it by reference and never change it; every
// field is empty after clearAddressFields.

#include <string>

namespace qb {

struct AddressRecord {
  std::string businessName;  // 0
  std::string contactName;   // 1
  std::string addressText;   // 2: the whole street address, possibly several lines
  std::string city;          // 3
  std::string province;      // 4
  std::string postalCode;    // 5
  std::string country;       // 6
  std::string phone;         // 7
  std::string fax;           // 8
  std::string cell;          // 9
  std::string homePhone;     // 10
  std::string email;         // 11
  std::string webSite;       // 12
};

}  // namespace qb

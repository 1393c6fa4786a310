#pragma once
// RuntimeError: a failure raised by the services (a store error, a conversion
// overflow, a control refusing a value). It carries the run-time's error
// number, a description and the source that raised it, as the error object's
// recordError takes them. Procedures catch it through their Procedure object
// (procedure.h); it never crosses a public operation of the system.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace qb {

// Error numbers the services raise, with the run-time's meanings.
namespace err {
constexpr int32_t kInvalidCall = 5;           // invalid procedure call or argument
constexpr int32_t kOverflow = 6;              // value too large for the target type
constexpr int32_t kSubscript = 9;             // index out of range
constexpr int32_t kTypeMismatch = 13;         // text that is not a number or date
constexpr int32_t kObjectRequired = 91;       // object variable not set
constexpr int32_t kInvalidProperty = 380;     // a control refused a property value
constexpr int32_t kNoCurrentRecord = 3021;    // a recordset with no current row
constexpr int32_t kStoreError = 3001;         // the store failed (bad SQL, locked file, ...)
constexpr int32_t kReadOnly = 3251;           // the recordset does not allow the operation
constexpr int32_t kItemNotFound = 3265;       // no field of that name
constexpr int32_t kBadHandle = 3704;          // the recordset handle is closed or unknown
constexpr int32_t kIndexOutOfBounds = 35600;  // a collection refused an index
constexpr int32_t kKeyNotUnique = 35602;      // a collection key used twice
constexpr int32_t kElementNotFound = 35601;   // no element with that key
constexpr int32_t kFileNotFound = 53;
constexpr int32_t kXmlParse = 1003;  // an XML text that can't be parsed
}  // namespace err

class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int32_t number, const std::string& description, std::string source = "")
      : std::runtime_error(description), number_(number), source_(std::move(source)) {}

  int32_t number() const { return number_; }
  std::string description() const { return what(); }
  const std::string& source() const { return source_; }

 private:
  int32_t number_;
  std::string source_;
};

}  // namespace qb

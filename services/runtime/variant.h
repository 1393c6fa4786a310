#pragma once
// Variant: the value of mixed type that field reads, list columns and most
// of the system's procedures pass around. It holds Empty, Null, a Boolean, a
// 16- or 32-bit integer, a Double, a String (UTF-8) or a Date (a double of days
// since 30 December 1899, the fraction being the time of day).
//
// The class only stores; the platform's conversion rules live in
// conversions.h (CStr, CLng, CBool, ...), so that every caller converts the
// same way.

#include <cstdint>
#include <string>
#include <variant>

namespace qb {

enum class VarType { Empty, Null, Boolean, Integer, Long, Double, String, Date };

class Variant {
 public:
  Variant() = default;  // Empty
  Variant(bool value) : type_(VarType::Boolean), value_(value) {}
  Variant(int16_t value) : type_(VarType::Integer), value_(int32_t{value}) {}
  Variant(int32_t value) : type_(VarType::Long), value_(value) {}
  Variant(double value) : type_(VarType::Double), value_(value) {}
  Variant(std::string value) : type_(VarType::String), value_(std::move(value)) {}
  Variant(const char* value) : type_(VarType::String), value_(std::string(value)) {}

  static Variant null() {
    Variant v;
    v.type_ = VarType::Null;
    return v;
  }
  static Variant date(double serial) {
    Variant v(serial);
    v.type_ = VarType::Date;
    return v;
  }

  VarType type() const { return type_; }
  bool isEmpty() const { return type_ == VarType::Empty; }
  bool isNull() const { return type_ == VarType::Null; }
  bool isString() const { return type_ == VarType::String; }
  bool isDate() const { return type_ == VarType::Date; }
  bool isBoolean() const { return type_ == VarType::Boolean; }
  // True for Integer, Long and Double (not Boolean, not Date).
  bool isNumberType() const {
    return type_ == VarType::Integer || type_ == VarType::Long || type_ == VarType::Double;
  }

  // Raw access to the stored value; the caller must have checked the type.
  // For conversions with the platform's rules use conversions.h instead.
  bool rawBool() const { return std::get<bool>(value_); }
  int32_t rawInt() const { return std::get<int32_t>(value_); }
  double rawDouble() const { return std::get<double>(value_); }  // Double and Date
  const std::string& rawString() const { return std::get<std::string>(value_); }

  // Same type and same stored value (no conversion). Mostly for tests.
  bool operator==(const Variant& other) const {
    return type_ == other.type_ && value_ == other.value_;
  }

 private:
  VarType type_ = VarType::Empty;
  std::variant<std::monostate, bool, int32_t, double, std::string> value_;
};

}  // namespace qb

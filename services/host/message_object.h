#pragma once
// The message object the host hands in (MsgboxClass): modal messages and
// yes-or-no questions. askMessage's result 0 means the user said yes.
// messageStyle: 3 a failure while loading, 4 a refusal or a question,
// 10 a refusal to touch a protected category.

#include <cstdint>
#include <string>

namespace qb {

class OwnerForm;

class MessageObject {
 public:
  virtual ~MessageObject() = default;
  virtual void showMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner) = 0;
  virtual void askMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner,
                          int32_t& result) = 0;
};

}  // namespace qb

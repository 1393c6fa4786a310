#pragma once
// The command-line host's message object: writes messages to a stream and
// answers every question with a fixed answer (1, "no", unless told).

#include <ostream>
#include <string>

#include "services/host/message_object.h"

namespace qb {

class ConsoleMessageObject : public MessageObject {
 public:
  explicit ConsoleMessageObject(std::ostream& out, int32_t answer = 1)
      : out_(out), answer_(answer) {}

  void showMessage(const std::string& text, int16_t, OwnerForm*) override { out_ << text << "\n"; }
  void askMessage(const std::string& text, int16_t, OwnerForm*, int32_t& result) override {
    out_ << text << "\n";
    result = answer_;
  }

 private:
  std::ostream& out_;
  int32_t answer_;
};

}  // namespace qb

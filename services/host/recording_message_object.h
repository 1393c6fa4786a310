#pragma once
// The test host's message object: records every message and question and
// answers questions from a script (0 means yes), then with the default.

#include <deque>
#include <string>
#include <vector>

#include "services/host/message_object.h"

namespace qb {

class RecordingMessageObject : public MessageObject {
 public:
  struct Message {
    std::string text;
    int16_t style;
    bool question;
    OwnerForm* owner;
  };

  void showMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner) override {
    messages.push_back({text, messageStyle, false, owner});
  }
  void askMessage(const std::string& text, int16_t messageStyle, OwnerForm* owner,
                  int32_t& result) override {
    messages.push_back({text, messageStyle, true, owner});
    if (answers.empty()) {
      result = defaultAnswer;
    } else {
      result = answers.front();
      answers.pop_front();
    }
  }

  std::vector<Message> messages;
  std::deque<int32_t> answers;
  int32_t defaultAnswer = 0;
};

}  // namespace qb

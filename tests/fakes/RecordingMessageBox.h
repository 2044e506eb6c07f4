#pragma once

#include "env/MessageBoxPort.h"

#include <deque>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records each message box and answers from a script. After the script's end answers Ok, or Yes to a question.
class RecordingMessageBox : public MessageBoxPort {
 public:
  struct Box {
    BoxKind kind;
    BoxButtons buttons;
    std::string title;
    std::string text;
  };

  BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) override {
    boxes.push_back({kind, buttons, title, text});
    if (!answers.empty()) {
      const BoxAnswer answer = answers.front();
      answers.pop_front();
      return answer;
    }
    return buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::Yes;
  }

  std::vector<Box> boxes;
  std::deque<BoxAnswer> answers;
};

}  // namespace vantorium::fakes

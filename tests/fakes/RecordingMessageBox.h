#pragma once

#include "env/MessageBoxPort.h"

#include <deque>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records each message box and answers from a script. After the script's end answers Ok, or Yes to a question.
class RecordingMessageBox : public env::MessageBoxPort {
 public:
  struct Box {
    env::BoxKind kind;
    env::BoxButtons buttons;
    std::string title;
    std::string text;
  };

  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override {
    boxes.push_back({kind, buttons, title, text});
    if (!answers.empty()) {
      const env::BoxAnswer answer = answers.front();
      answers.pop_front();
      return answer;
    }
    return buttons == env::BoxButtons::Ok ? env::BoxAnswer::Ok : env::BoxAnswer::Yes;
  }

  std::vector<Box> boxes;
  std::deque<env::BoxAnswer> answers;
};

}  // namespace vantorium::fakes

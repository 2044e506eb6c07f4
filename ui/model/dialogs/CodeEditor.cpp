#include "ui/model/dialogs/CodeEditor.h"

namespace vantorium::ui {

std::optional<RefusedCode> FindRefusedCode(std::span<const std::string> texts, env::MessageBoxPort& boxes) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::size_t position = texts[i].find("]]>");
    if (position == std::string::npos) continue;
    boxes.Critical("Invalid Characters found",
                   "Custom code may not contain the string \"]]>\". Please edit your code accordingly.");
    return RefusedCode{i, position};
  }
  return std::nullopt;
}

}  // namespace vantorium::ui

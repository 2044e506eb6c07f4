#pragma once

#include "env/MessageBoxPort.h"

namespace vantorium::ui {

/// Shows message boxes over the active window, with plain text.
class QtMessageBox : public env::MessageBoxPort {
 public:
  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override;
  /// The list is behind a button that shows it below the text, where it scrolls.
  void ShowList(const std::string& title, const std::string& text, const std::string& lines) override;
};

}  // namespace vantorium::ui

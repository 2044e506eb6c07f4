#pragma once

#include "env/MessageBoxPort.h"

namespace vantorium::ui {

/// Shows message boxes over the active window, with plain text.
class QtMessageBox : public env::MessageBoxPort {
 public:
  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override;
};

}  // namespace vantorium::ui

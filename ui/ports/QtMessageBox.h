#pragma once

#include "env/MessageBoxPort.h"

namespace vantorium {

/// Shows message boxes over the active window, with plain text.
class QtMessageBox : public MessageBoxPort {
 public:
  BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) override;
};

}  // namespace vantorium

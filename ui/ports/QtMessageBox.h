#pragma once

#include "env/MessageBoxPort.h"

namespace vantorium {

/// Message boxes over the active window, their texts plain.
class QtMessageBox : public MessageBoxPort {
 public:
  BoxAnswer Show(BoxKind kind, BoxButtons buttons, const std::string& title, const std::string& text) override;
};

}  // namespace vantorium

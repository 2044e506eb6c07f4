#pragma once

#include "env/MessageBoxPort.h"

#include <QPlainTextEdit>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vantorium {

// Text boxes of several lines that hold code, or other texts of the user.

/// Shows `text`, whose lines end in CR LF, with nothing to undo.
void ShowCode(QPlainTextEdit& box, std::string_view text);

/// What the box holds, with CR LF. A text that the user left as it is comes back to the byte: `shown` is what ShowCode
/// was given.
[[nodiscard]] std::string CodeOf(const QPlainTextEdit& box, std::string_view shown = {});

/// Whether a project file can keep the texts of the boxes. If not, the user is told, and the focus goes to the first
/// box at fault, with the forbidden characters selected.
[[nodiscard]] bool MayKeepCode(std::initializer_list<QPlainTextEdit*> boxes, MessageBoxPort& port);

}  // namespace vantorium

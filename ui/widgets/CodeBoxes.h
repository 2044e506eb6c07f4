#pragma once

#include "env/MessageBoxPort.h"

#include <QPlainTextEdit>
#include <initializer_list>
#include <string>
#include <string_view>

namespace vantorium::ui {

// Multi-line text boxes that hold code or other texts of the user.

/// Shows `text`, whose lines end in CR LF, and clears the undo history.
void ShowCode(QPlainTextEdit& box, std::string_view text);

/// Returns the box's text, with CR LF. `shown` is what ShowCode was given; if the user did not change it, it comes back
/// byte for byte.
[[nodiscard]] std::string CodeOf(const QPlainTextEdit& box, std::string_view shown = {});

/// Returns whether a project file can store the texts of the boxes. If not, tells the user, focuses the first box at
/// fault and selects the forbidden characters.
[[nodiscard]] bool MayKeepCode(std::initializer_list<QPlainTextEdit*> boxes, env::MessageBoxPort& port);

}  // namespace vantorium::ui

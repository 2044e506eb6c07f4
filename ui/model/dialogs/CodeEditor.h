#pragma once

#include "env/MessageBoxPort.h"

#include <optional>
#include <span>
#include <string>

namespace vantorium::ui {

/// Where custom code is refused: the index of the text, and the byte at which the forbidden characters begin in it.
struct RefusedCode {
  std::size_t text;
  std::size_t position;
};

/// Looks for "]]>", which would end the section of a project file that stores such code. Shows a message box for the
/// first text that contains it and does not check the texts after it. Returns nullopt if no text contains it.
[[nodiscard]] std::optional<RefusedCode> FindRefusedCode(std::span<const std::string> texts,
                                                         env::MessageBoxPort& boxes);

/// Number of forbidden characters, starting at RefusedCode::position.
inline constexpr std::size_t kRefusedLength = 3;

}  // namespace vantorium::ui

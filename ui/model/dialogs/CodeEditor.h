#pragma once

#include "env/MessageBoxPort.h"

#include <optional>
#include <span>
#include <string>

namespace vantorium {

/// Where custom code can't be kept: the index of its text, and the byte in it at which the forbidden characters begin.
struct RefusedCode {
  std::size_t text;
  std::size_t position;
};

/// Looks for "]]>", which would end the section of a project file that keeps such code. The first text that has it is
/// told in a message box, and those behind it are not looked at.
[[nodiscard]] std::optional<RefusedCode> FindRefusedCode(std::span<const std::string> texts, MessageBoxPort& boxes);

/// How many characters are forbidden, from RefusedCode::position on.
inline constexpr std::size_t kRefusedLength = 3;

}  // namespace vantorium

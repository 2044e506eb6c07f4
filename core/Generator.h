#pragma once

#include <string_view>

namespace vantorium::core {

/// How the program names itself in the files that it makes.
inline constexpr std::string_view kGenerator = "Vantorium Image Gallery Creator 3.0";

}  // namespace vantorium::core

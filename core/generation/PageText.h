#pragma once

#include "env/Text.h"

#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace vantorium::generation {

/// Builds the text of a page line by line. Each line ends in CR LF.
class PageText {
 public:
  PageText() { text_.reserve(kUsualSize); }

  void Line(std::string_view text = {}) { text_.append(text).append(env::kCrLf); }

  /// Appends a line formatted by {fmt}. Pass user text only as arguments.
  template <typename... Args>
  void Format(fmt::format_string<Args...> format, Args&&... args) {
    fmt::format_to(std::back_inserter(text_), format, std::forward<Args>(args)...);
    text_.append(env::kCrLf);
  }

  /// Appends user code between two comments that name its place, such as "HEAD CODE". `indent` precedes each comment.
  void UserCode(std::string_view place, std::string_view code, std::string_view indent = {});

  [[nodiscard]] std::string Take() { return std::move(text_); }

 private:
  static constexpr std::size_t kUsualSize = 4096;
  std::string text_;
};

}  // namespace vantorium::generation

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium::publish {

/// A reply of an FTP server (RFC 959, section 4.2), assembled from pieces as they arrive.
///
/// A line that begins with three digits sets the code to their number, and ends the reply unless a dash follows. The
/// first and the last number are not compared. Text after a complete reply in the same piece is also processed, so the
/// later code wins.
class FTPReply {
 public:
  /// A longer reply counts as a broken connection.
  static constexpr std::size_t kMostCharacters = std::size_t{1} << 20U;

  /// Adds what was read. Throws RuntimeFailure InvalidArgument for a line of three digits and nothing else.
  void Take(std::string_view piece);

  /// Whether the pieces so far contain a reply's last line.
  [[nodiscard]] bool IsComplete() const { return isComplete_; }
  [[nodiscard]] bool IsTooLong() const { return taken_ > kMostCharacters; }

  /// The number of the last numbered line; 0 without one.
  [[nodiscard]] std::int16_t Code() const { return code_; }
  /// The lines, without numbers and line ends, joined by single blanks.
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  void TakeLine(std::string_view line);

  std::string pending_;  ///< the start of an unfinished line
  std::size_t taken_ = 0;
  std::int16_t code_ = 0;
  bool isComplete_ = false;
  std::string text_;
};

}  // namespace vantorium::publish

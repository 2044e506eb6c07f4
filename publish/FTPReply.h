#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vantorium {

/// A reply of an FTP server (RFC 959, section 4.2), put together out of pieces as they arrive.
///
/// A line that begins with three digits gives its number as the code, and ends the reply unless a dash follows. Opening
/// and closing number are not compared. What arrives behind a whole reply in the same piece is taken in as well, so the
/// later code stands.
class FTPReply {
 public:
  /// A reply that goes on beyond this counts as a broken connection.
  static constexpr std::size_t kMostCharacters = std::size_t{1} << 20U;

  /// Takes in what was read. Throws RuntimeFailure InvalidArgument for a line of three digits and nothing else.
  void Take(std::string_view piece);

  /// The lines of the pieces so far hold a reply's last line.
  [[nodiscard]] bool IsComplete() const { return isComplete_; }
  [[nodiscard]] bool IsTooLong() const { return taken_ > kMostCharacters; }

  /// The number of the last numbered line; 0 without one.
  [[nodiscard]] std::int16_t Code() const { return code_; }
  /// The lines, without numbers and line ends, joined by single blanks.
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  void TakeLine(std::string_view line);

  std::string pending_;  ///< the start of a line that has no end yet
  std::size_t taken_ = 0;
  std::int16_t code_ = 0;
  bool isComplete_ = false;
  std::string text_;
};

}  // namespace vantorium

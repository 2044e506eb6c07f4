#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fuzz {

// Words that mean something to a reader, for mutations to put in. The files have the form that libFuzzer's dictionaries
// have: a word in double quotation marks a line, in it \\, \" and \x41 for other bytes; blank lines and lines that
// begin with "#".

/// The words of such a text. Throws std::runtime_error for a line that is none of the above.
[[nodiscard]] std::vector<std::string> WordsOf(std::string_view text);

/// The same for a file; none when there is no such file.
[[nodiscard]] std::vector<std::string> ReadWords(const std::filesystem::path& file);

}  // namespace vantorium::fuzz

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fuzz {

// Words with a meaning for a reader, which the mutator inserts. The files are libFuzzer dictionaries: each line is
// blank, begins with "#", or has one word in double quotation marks, with the escapes \\, \" and \x41 for other bytes.

/// Returns the words of a dictionary. Throws std::runtime_error for an invalid line.
[[nodiscard]] std::vector<std::string> WordsOf(std::string_view text);

/// The words of a dictionary file; none if there is no such file.
[[nodiscard]] std::vector<std::string> ReadWords(const std::filesystem::path& file);

}  // namespace vantorium::fuzz

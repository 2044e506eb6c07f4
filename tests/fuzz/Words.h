#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::fuzz {

// Words that mean something to a reader, for the mutator to insert. The files are libFuzzer dictionaries: one word in
// double quotation marks a line, with the escapes \\, \" and \x41 for other bytes; blank lines, and lines that begin
// with "#".

/// Returns the words of a dictionary. Throws std::runtime_error for an invalid line.
[[nodiscard]] std::vector<std::string> WordsOf(std::string_view text);

/// The same for a file. Returns no words if there is no such file.
[[nodiscard]] std::vector<std::string> ReadWords(const std::filesystem::path& file);

}  // namespace vantorium::fuzz

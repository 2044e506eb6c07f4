#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium::env {

// Reads and writes single values of preference-like files, which env/INIText.h describes. Files are native paths.

/// The maximum size of such a file, in bytes.
inline constexpr std::size_t kMostINIBytes = std::size_t{16} << 20;

/// Returns the whole text of such a file; empty if it does not exist. Throws RuntimeFailure FileAccess if it cannot be
/// read.
[[nodiscard]] std::string ReadINIFile(const std::filesystem::path& file);

/// Returns the value of `key` as text. Throws RuntimeFailure Preferences if there is none; FileNotFound or FileAccess
/// if the file is missing or cannot be read.
[[nodiscard]] std::string ReadINIString(std::string_view section, std::string_view key,
                                        const std::filesystem::path& file);

/// Returns the value as an integer. Throws RuntimeFailure Preferences if there is no value to read, for whatever
/// reason; TypeMismatch or Overflow if the value is not a 32-bit number.
[[nodiscard]] std::int32_t ReadINIInteger(std::string_view section, std::string_view key,
                                          const std::filesystem::path& file);

/// Sets the value, in double quotation marks; everything else in the file stays unchanged. Creates the file and the
/// section if they are missing, but not the folder. The file is replaced as a whole and is on the disk when this
/// returns. Throws RuntimeFailure Preferences, with the file untouched, if reading or writing fails or a text contains
/// a line break or a NUL.
void WriteINIString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file);

}  // namespace vantorium::env

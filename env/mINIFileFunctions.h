#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace vantorium {

// Single values of preference-like files, which env/INIText.h describes. Files are native paths. The program's own
// failure is RuntimeFailure Preferences.

/// The most bytes that such a file may have.
inline constexpr std::size_t kMostINIBytes = std::size_t{16} << 20;

/// The whole text of such a file, empty when there is none. Throws FileAccess for one that cannot be read.
[[nodiscard]] std::string ReadINIFile(const std::filesystem::path& file);

/// The value of `key` as text. Throws the program's own failure when there is none, and the system's, FileNotFound or
/// FileAccess, for a file that is missing or cannot be read.
[[nodiscard]] std::string ReadINIString(std::string_view section, std::string_view key,
                                        const std::filesystem::path& file);

/// The value as an integer. Throws the program's own failure when there is no value to read, whatever the reason;
/// TypeMismatch or Overflow for a value that is none.
[[nodiscard]] std::int32_t ReadINIInteger(std::string_view section, std::string_view key,
                                          const std::filesystem::path& file);

/// Sets the value, in double quotation marks; all else in the file stays as it is. File and section are made when they
/// are missing, a folder is not. The file is replaced as a whole and is on the disk when this returns. Throws the
/// program's own failure, with the file untouched: when reading or writing fails, and for a text with a line break or a
/// NUL in it.
void WriteINIString(std::string_view section, std::string_view key, std::string_view value,
                    const std::filesystem::path& file);

}  // namespace vantorium

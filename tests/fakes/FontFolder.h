#pragma once

#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace vantorium::fakes {

/// While it exists, FONTCONFIG_FILE names a configuration that has only the fonts that the test adds.
class FontFolder {
 public:
  /// `rules` are further elements of the Fontconfig configuration.
  explicit FontFolder(const std::string& rules = "") {
    std::filesystem::create_directory(folder_.Path() / "fonts");
    folder_.Write("fonts.conf", "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig><dir>" +
                                    (folder_.Path() / "fonts").string() + "</dir><cachedir>" +
                                    (folder_.Path() / "cache").string() + "</cachedir>" + rules + "</fontconfig>");
  }

  /// Adds an installed font, such as "LiberationSans-Regular.ttf". Throws std::runtime_error if it is not installed.
  std::filesystem::path Add(const std::string& file) const {
    for (const auto& entry : std::filesystem::recursive_directory_iterator("/usr/share/fonts")) {
      if (entry.path().filename() != file) continue;
      std::filesystem::copy_file(entry.path(), FileOf(file));
      return FileOf(file);
    }
    throw std::runtime_error("no font file " + file);
  }

  /// Overwrites a font that Fontconfig already knows, so that it can no longer be opened. Throws std::runtime_error if
  /// the file is missing or cannot be written.
  void Break(const std::string& file) const {
    std::fstream font(FileOf(file), std::ios::in | std::ios::out | std::ios::binary);
    font << std::string(100'000, '?') << std::flush;
    if (!font) throw std::runtime_error("cannot overwrite the font file " + FileOf(file).string());
  }

  [[nodiscard]] std::filesystem::path FileOf(const std::string& file) const { return folder_.Path() / "fonts" / file; }
  [[nodiscard]] std::filesystem::path Settings() const { return folder_.Path() / "fonts.conf"; }

 private:
  TemporaryFolder folder_;
  EnvironmentVariable settings_{"FONTCONFIG_FILE", Settings().c_str()};
};

}  // namespace vantorium::fakes

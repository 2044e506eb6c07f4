#pragma once

#include "tests/fakes/Hindrances.h"
#include "tests/fakes/TemporaryFolder.h"

#include <filesystem>
#include <stdexcept>
#include <string>

namespace vantorium::fakes {

/// Font settings of their own for what is started while it exists: no fonts but those that the test puts there.
class FontFolder {
 public:
  /// `rules` are elements of the settings, in the words of Fontconfig.
  explicit FontFolder(const std::string& rules = "") {
    std::filesystem::create_directory(folder_.Path() / "fonts");
    folder_.Write("fonts.conf", "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig><dir>" +
                                    (folder_.Path() / "fonts").string() + "</dir><cachedir>" +
                                    (folder_.Path() / "cache").string() + "</cachedir>" + rules + "</fontconfig>");
  }

  /// Puts a font of the machine there, such as "LiberationSans-Regular.ttf".
  std::filesystem::path Add(const std::string& file) const {
    for (const auto& entry : std::filesystem::recursive_directory_iterator("/usr/share/fonts")) {
      if (entry.path().filename() != file) continue;
      std::filesystem::copy_file(entry.path(), FileOf(file));
      return FileOf(file);
    }
    throw std::runtime_error("no font file " + file);
  }

  /// Overwrites a font that the settings know already, so that it can't be opened any more.
  void Break(const std::string& file) const {
    std::fstream(FileOf(file), std::ios::in | std::ios::out | std::ios::binary) << std::string(100'000, '?');
  }

  [[nodiscard]] std::filesystem::path FileOf(const std::string& file) const { return folder_.Path() / "fonts" / file; }
  [[nodiscard]] std::filesystem::path Settings() const { return folder_.Path() / "fonts.conf"; }

 private:
  TemporaryFolder folder_;
  EnvironmentVariable settings_{"FONTCONFIG_FILE", Settings().c_str()};
};

}  // namespace vantorium::fakes

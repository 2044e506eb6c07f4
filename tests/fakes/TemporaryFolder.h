#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

namespace vantorium::fakes {

/// A new folder. The destructor removes it and everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vantorium-test-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder could be made");
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

  /// Writes a file in the folder, creates the subfolders it needs, and returns its path.
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view bytes) const {
    const auto target = path_ / name;
    std::filesystem::create_directories(target.parent_path());
    std::ofstream(target, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return target;
  }

  [[nodiscard]] std::string Read(const std::filesystem::path& name) const { return ReadFile(path_ / name); }

  [[nodiscard]] static std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace vantorium::fakes

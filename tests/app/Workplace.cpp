#include "tests/app/Workplace.h"

#include "image/JPEG.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <stdexcept>

#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::batch {
namespace {

/// This process's environment, with its sanitizer options, and with the variables that the program reads replaced.
std::map<std::string, std::string> EnvironmentAt(const fs::path& home) {
  std::map<std::string, std::string> environment;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string text = *variable;
    const auto equals = text.find('=');
    environment[text.substr(0, equals)] = text.substr(equals + 1);
  }
  environment.erase("XDG_CONFIG_HOME");
  environment.erase("XDG_CACHE_HOME");
  environment["HOME"] = home.string();
  environment["LC_ALL"] = "C.UTF-8";
  return environment;
}

/// A smooth color gradient, so that the file is no larger than a photograph's.
image::cDIBSection Slope(int width, int height, std::size_t seed) {
  image::cDIBSection picture;
  if (!picture.Create(width, height)) throw std::runtime_error("no memory for a picture");
  for (int y = 0; y < height; ++y) {
    std::uint8_t* pixel = picture.Row(y);
    for (int x = 0; x < width; ++x, pixel += 3) {
      pixel[0] = static_cast<std::uint8_t>(seed);
      pixel[1] = static_cast<std::uint8_t>(255 * y / height);
      pixel[2] = static_cast<std::uint8_t>(255 * x / width);
    }
  }
  return picture;
}

}  // namespace

Workplace::Workplace() {
  for (const char* name : {"home", "program", "temp"}) fs::create_directory(Path(name));
}

fs::path Workplace::Path(const fs::path& name) const {
  return name.empty() ? folder_.Path() : folder_.Path() / name;
}

std::string Workplace::Text(const fs::path& name) const {
  std::string text = SourceText(name);
  std::ranges::replace(text, '/', '\\');
  return text;
}

std::string Workplace::SourceText(const fs::path& name) const {
  return "Z:" + Path(name).string();
}

fs::path Workplace::Write(const fs::path& name, std::string_view bytes) const {
  return folder_.Write(name, bytes);
}

std::string Workplace::Read(const fs::path& name) const {
  if (!fs::exists(Path(name))) throw std::runtime_error("there is no " + name.string());
  return folder_.Read(name);
}

fs::path Workplace::Photograph(const fs::path& name, int width, int height) const {
  constexpr std::int32_t kQuality = 90;
  return Write(name, image::EncodeJPEG(Slope(width, height, std::hash<std::string>()(name.string())), kQuality));
}

void Workplace::Project(const fs::path& name, const std::vector<std::string>& photographs) const {
  std::vector<std::string> arguments = {"new", "--force", Path(name).string()};
  for (const std::string& photograph : photographs) arguments.push_back(Photograph(photograph).string());
  ASSERT_TRUE(Succeeded(Run(arguments)));
}

void Workplace::LargeProject(const fs::path& name, std::size_t images, int width, int height) const {
  std::vector<std::string> arguments = {"new", "--force", Path(name).string()};
  arguments.resize(images + 3, Photograph("many.jpg", width, height).string());
  ASSERT_TRUE(Succeeded(Run(arguments)));
}

void Workplace::SlowProject(const fs::path& name) const {
  LargeProject(name, 300);
  Replace(name, "HEIGHT=\"300\"", "HEIGHT=\"1500\"");
}

void Workplace::Replace(const fs::path& name, std::string_view old, std::string_view text) const {
  std::string bytes = Read(name);
  const auto at = bytes.find(old);
  ASSERT_NE(at, std::string::npos) << old << " is not in\n" << bytes;
  ASSERT_EQ(bytes.find(old, at + 1), std::string::npos) << old << " occurs twice in\n" << bytes;
  Write(name, bytes.replace(at, old.size(), text));
}

StartOptions Workplace::Options(const std::vector<std::string>& arguments) const {
  StartOptions options{.command = {VANTORIUM_BATCH, "--program-folder", Path("program").string(), "--temp-folder",
                                   Path("temp").string()},
                       .folder = Path(),
                       .environment = EnvironmentAt(Path("home"))};
  options.command.insert(options.command.end(), arguments.begin(), arguments.end());
  return options;
}

ProcessResult Workplace::Run(const std::vector<std::string>& arguments) const {
  return ChildProcess(Options(arguments)).Finish();
}

std::string ListingOf(const fs::path& folder) {
  std::string listing;
  for (const auto& [name, bytes] : FilesBelow(folder)) listing += name + "\n";
  return listing;
}

testing::AssertionResult SameFiles(const fs::path& one, const fs::path& other) {
  auto left = FilesBelow(one);
  auto right = FilesBelow(other);
  std::string different;
  for (const auto& [name, bytes] : left) {
    if (!right.contains(name) || right.at(name) != bytes) different += " " + name;
    right.erase(name);
  }
  for (const auto& [name, bytes] : right) different += " " + name;
  if (different.empty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "these differ:" << different;
}

testing::AssertionResult Succeeded(const ProcessResult& result) {
  return EndedWith(0, result);
}

testing::AssertionResult EndedWith(int exitCode, const ProcessResult& result) {
  if (result.exitCode == exitCode) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the exit code is " << result.exitCode << " instead of " << exitCode
                                     << "\nstandard output:\n"
                                     << result.out << "\nstandard error:\n"
                                     << result.err;
}

}  // namespace vantorium::batch

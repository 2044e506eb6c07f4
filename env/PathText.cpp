#include "env/PathText.h"

#include "env/Text.h"

namespace vantorium::env {
namespace {

std::string Prepared(std::string_view path) {
  std::string text = WithBackslashes(path);
  if (text.starts_with('\\')) text.erase(0, 1);
  return text;
}

}  // namespace

std::string GetFileName(std::string_view path) {
  const std::string text = Prepared(path);
  return text.substr(text.rfind('\\') + 1);  // npos + 1 is 0
}

std::string GetFilePath(std::string_view path) {
  const std::string text = Prepared(path);
  return text.substr(0, text.rfind('\\') + 1);
}

std::string GetFileExtension(std::string_view path) {
  const auto dot = path.rfind('.');
  return dot == std::string_view::npos ? std::string() : std::string(path.substr(dot));
}

bool HasDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' && IsAsciiLetter(path[0]);
}

std::string WithSlashes(std::string_view path) {
  return ReplaceAll(path, "\\", "/");
}
std::string WithBackslashes(std::string_view path) {
  return ReplaceAll(path, "/", "\\");
}

std::string WithExtension(std::string_view path, std::string_view extension) {
  const bool complete =
      path.size() >= extension.size() && EqualsIgnoringCase(path.substr(path.size() - extension.size()), extension);
  return std::string(path).append(complete ? std::string_view() : extension);
}

std::string WithTrailingBackslash(std::string_view folder) {
  std::string text(folder);
  if (!text.ends_with('\\')) text += '\\';
  return text;
}

}  // namespace vantorium::env

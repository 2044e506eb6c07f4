#include "app/batch/OutputNames.h"

#include "core/ImageFormats.h"
#include "core/file/XmlNode.h"
#include "core/file/XmlSyntax.h"
#include "env/FileInput.h"
#include "env/OpenFolder.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"

namespace fs = std::filesystem;

namespace vantorium::batch {
namespace {

std::string Quoted(const std::string& path, const env::PathMap& paths) {
  return "\"" + paths.Surface(path) + "\"";
}

fs::file_status StatusOf(const std::string& path, const env::PathMap& paths) {
  const auto native = paths.ToNative(path);
  std::error_code error;
  return native ? fs::status(*native, error) : fs::file_status();
}

bool IsProject(const fs::path& file) {
  try {
    core::XmlFile xml;
    return xml.Parse(env::ReadFileWhole(file, core::kLargestXmlFile)) &&
           std::string_view(xml.Root().name()) == "GALLERYPROJECT";
  } catch (const env::RuntimeFailure&) {
    return false;
  }
}

}  // namespace

bool IsSameFile(const std::string& one, const std::string& other, const env::PathMap& paths) {
  const auto first = paths.ToNative(one);
  const auto second = paths.ToNative(other);
  std::error_code error;  // one of them does not exist
  return first && second && fs::equivalent(*first, *second, error);
}

std::string RefusalOfProject(const std::string& file, bool replace, const env::PathMap& paths) {
  if (!fs::exists(StatusOf(file, paths))) return {};
  const std::string exists = Quoted(file, paths) + " exists";
  if (!IsProject(paths.ToNative(file).value_or(""))) return exists + " and is no project, so it is not replaced.";
  return replace ? "" : exists + ".  It is replaced only with --force.";
}

std::string IndexFileOf(const std::string& path, const env::PathMap& paths) {
  const bool isFolder = path.ends_with('\\') || env::IsFolder(paths.ToNative(path));
  return isFolder ? env::WithTrailingBackslash(path) + "index.htm" : path;
}

std::string RefusalOfIndexFile(const std::string& path, const env::PathMap& paths) {
  const fs::file_status status = StatusOf(path, paths);
  if (!fs::exists(status)) return {};
  const std::string cannot = Quoted(path, paths) + " cannot be the index file, as it is there and is ";
  if (!fs::is_regular_file(status)) return cannot + "no file.";
  if (core::IsSupportedImageExtension(env::GetFileExtension(path))) return cannot + "named like a photograph.";
  return IsProject(paths.ToNative(path).value_or("")) ? cannot + "a project." : "";
}

}  // namespace vantorium::batch

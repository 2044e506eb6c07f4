#include "core/generation/changes/RecordFile.h"

#include "core/generation/changes/GalleryNames.h"
#include "env/Digest.h"
#include "env/FileInput.h"
#include "env/FileOutput.h"
#include "env/RuntimeFailure.h"
#include "image/CodecVersions.h"
#include "publish/FTPPath.h"

#include <fmt/format.h>

namespace vantorium::generation {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = std::size_t{1} << 30;

/// Returns the folder without symbolic links, so that all paths to it have one record.
std::string LocalTargetText(const RunOrder& order, const env::PathMap& paths) {
  const auto native = paths.ToNative(order.OutputFolder);
  if (!native) return {};
  std::error_code error;
  fs::path folder = fs::absolute(*native, error).lexically_normal();
  if (!folder.has_filename()) folder = folder.parent_path();
  folder = fs::weakly_canonical(folder, error);
  return error ? "" : "folder\n" + folder.string();
}

std::string ServerTargetText(const RunOrder& order) {
  return fmt::format("server\n{}\n{}\n{}\n{}\n{}", order.ServerAddress, order.Port, order.UserName, order.BaseDirectory,
                     publish::RelativeToSession(order.RemoteFolder));
}

std::string TargetText(const RunOrder& order, const env::PathMap& paths) {
  return SendsToServer(order.Mode) ? ServerTargetText(order) : LocalTargetText(order, paths);
}

std::string GalleryText(const RunOrder& order, const env::PathMap& paths) {
  return order.Mode == GenerationMode::Upload ? LocalTargetText(order, paths) : NameOfIndexPage(order);
}

}  // namespace

RecordFile::RecordFile(const fs::path& cacheFolder, const RunOrder& order, const env::PathMap& paths)
    : subject_{TargetText(order, paths), "vantorium " VANTORIUM_VERSION " " + image::CodecVersions()},
      gallery_(env::DigestOf(GalleryText(order, paths))) {
  if (!cacheFolder.empty() && !subject_.target.empty()) {
    file_ = cacheFolder / (env::DigestOf(subject_.target) + ".record");
  }
}

MadeFiles RecordFile::Read() const {
  if (file_.empty()) return {};
  try {
    return ReadRunRecord(env::ReadFileWhole(file_, kMostBytes), subject_);
  } catch (const env::RuntimeFailure&) {
    return {};
  }
}

void RecordFile::Write(const MadeFiles& files) const {
  if (file_.empty()) return;
  std::error_code ignored;
  fs::create_directories(file_.parent_path(), ignored);
  try {
    env::WriteFileWhole(file_, RunRecordText(files, subject_));
  } catch (const env::RuntimeFailure&) {
    Remove();  // an old record may be wrong now
  }
}

void RecordFile::Remove() const {
  std::error_code ignored;
  if (!file_.empty()) fs::remove(file_, ignored);
}

}  // namespace vantorium::generation

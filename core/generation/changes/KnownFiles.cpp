#include "core/generation/changes/KnownFiles.h"

#include "core/generation/changes/PictureOrigins.h"
#include "env/Digest.h"

namespace vantorium::generation {
namespace {

bool IsSameFile(const SourceStamp& one, const SourceStamp& other) {
  return one.device == other.device && one.inode == other.inode;
}

}  // namespace

const MadeFile* KnownFiles::Find(const std::string& name) const {
  const auto known = files_.find(name);
  return known == files_.end() ? nullptr : &known->second;
}

bool KnownFiles::WillBeCurrent(const std::string& name, const std::string& origin) const {
  const MadeFile* known = Find(name);
  return !isDoubtful_ && known != nullptr && !origin.empty() && known->origin == origin;
}

bool KnownFiles::IsAsLeft(const std::string& name) {
  const MadeFile* known = Find(name);
  if (known == nullptr) return false;
  if (there_.IsAsLeft(name, *known)) return true;
  isDoubtful_ = true;
  files_.erase(name);
  return false;
}

// A file is forgotten before it is delivered again, so touched_ remembers what it belonged to.
void KnownFiles::Touch(const std::string& name) {
  const auto known = files_.find(name);
  const bool isOther = known != files_.end() && known->second.gallery != gallery_;
  const auto touched = touched_.try_emplace(name, isOther ? kSharedFile : gallery_).first;
  if (known != files_.end()) known->second.gallery = touched->second;
}

const MadeFile* KnownFiles::FindCurrent(const std::string& name, const std::string& origin) {
  Touch(name);
  const MadeFile* known = Find(name);
  const bool isKnown = known != nullptr && !origin.empty() && known->origin == origin;
  return isKnown && IsAsLeft(name) ? known : nullptr;
}

MadeFile* KnownFiles::FindBytes(const std::string& name, const MadeFile& made) {
  Touch(name);
  const auto known = files_.find(name);
  if (known == files_.end() || made.bytes.empty()) return nullptr;
  if (known->second.bytes != made.bytes || known->second.size != made.size) return nullptr;
  return IsAsLeft(name) ? &known->second : nullptr;
}

void KnownFiles::Note(const std::string& name, MadeFile made) {
  made.gallery = touched_.at(name);
  if (there_.Look(name, made)) files_.insert_or_assign(name, std::move(made));
}

Delivery KnownFiles::StorePage(const std::string& name, std::string_view bytes, const Deliver& deliver) {
  MadeFile made{.size = bytes.size(), .bytes = env::DigestOf(bytes)};
  if (FindBytes(name, made) != nullptr) return {};
  files_.erase(name);
  if (auto refusal = deliver()) return refusal;
  Note(name, std::move(made));
  return {};
}

/// A local file also gets the times of its source, so it is written even if its bytes are there.
Delivery KnownFiles::StorePicture(const std::string& name, std::string_view bytes, const Deliver& deliver,
                                  const std::function<std::string()>& originAfter) {
  MadeFile made{.size = bytes.size(), .bytes = there_.IsServer() ? env::DigestOf(bytes) : ""};
  if (MadeFile* known = FindBytes(name, made)) {
    known->origin = originAfter();
    return {};
  }
  files_.erase(name);
  if (auto refusal = deliver()) return refusal;
  made.origin = originAfter();
  Note(name, std::move(made));
  return {};
}

/// A copy of a file onto itself is no file that the run made.
Delivery KnownFiles::Copy(const std::string& name, const std::optional<std::filesystem::path>& source,
                          const Deliver& deliver) {
  const auto stamp = source ? SettledStampOf(*source) : std::nullopt;
  MadeFile made;
  if (stamp) made = {.size = static_cast<std::uint64_t>(stamp->size), .origin = OriginOfCopy(*stamp)};
  if (FindCurrent(name, made.origin) != nullptr) return {};
  if (stamp && there_.IsServer()) made.bytes = env::DigestOfFile(*source).value_or("");
  const auto isUnchanged = [&] { return StampOf(*source) == stamp; };
  if (MadeFile* known = FindBytes(name, made); known != nullptr && isUnchanged()) {
    known->origin = made.origin;
    return {};
  }
  files_.erase(name);
  if (auto refusal = deliver()) return refusal;
  if (!stamp || !isUnchanged()) return {};
  Note(name, std::move(made));
  const MadeFile* noted = Find(name);
  if (noted != nullptr && noted->stamp && IsSameFile(*noted->stamp, *stamp)) files_.erase(name);
  return {};
}

std::vector<std::string> KnownFiles::Touched() const {
  std::vector<std::string> names;
  for (const auto& [name, file] : files_) {
    if (touched_.contains(name)) names.push_back(name);
  }
  return names;
}

std::vector<std::string> KnownFiles::Untouched() const {
  std::vector<std::string> names;
  for (const auto& [name, file] : files_) {
    if (!touched_.contains(name) && file.gallery == gallery_) names.push_back(name);
  }
  return names;
}

bool KnownFiles::Remove(const std::string& name) {
  if (!IsAsLeft(name) || !there_.Remove(name)) return false;
  files_.erase(name);
  return true;
}

}  // namespace vantorium::generation

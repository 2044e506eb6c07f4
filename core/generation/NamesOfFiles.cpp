#include "core/generation/NamesOfFiles.h"

#include "core/CaseFolding.h"

#include <filesystem>

namespace vantorium::generation {

NamesOfFiles::Added NamesOfFiles::Add(const std::string& folder, const std::string& name) {
  Added added{Normalized(folder) + name, std::nullopt};
  const auto [known, isNew] = files_.try_emplace(core::FoldCase(added.own), added.own);
  if (!isNew) added.other = known->second;
  return added;
}

const std::string& NamesOfFiles::Normalized(const std::string& folder) {
  const auto [entry, isNew] = folders_.try_emplace(folder);
  if (isNew) {
    const std::string normal = std::filesystem::path("./" + folder).lexically_normal().string();
    entry->second = normal == "." ? "" : normal;
  }
  return entry->second;
}

}  // namespace vantorium::generation
